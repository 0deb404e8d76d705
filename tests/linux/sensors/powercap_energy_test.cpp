#include "linux/sensors/powercap_energy.h"

#include <gmock/gmock.h>

#include "linux/read_in_place.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct PowercapEnergyTest : ::testing::Test {
    ReadInPlace inPlace; // a busy machine would not read in time
    TemporaryFolder folder;
    PowercapEnergy source{folder.path(""), std::make_shared<FakeClock>()};

    void write(const std::string& zone, const std::string& name, std::uint64_t energy) {
        folder.writeLines("class/powercap/" + zone,
                          {{"name", name}, {"max_energy_range_uj", "1000"}, {"energy_uj", std::to_string(energy)}});
    }
    std::vector<std::pair<std::string, std::int64_t>> growth() {
        EXPECT_TRUE(source.takeSnapshot());
        std::vector<IOReportSampler::Channel> channels(9); // what was there before must not matter
        EXPECT_TRUE(source.readDifference(channels));
        std::vector<std::pair<std::string, std::int64_t>> result;
        for (const auto& channel : channels) {
            EXPECT_EQ(channel.group, "Energy Model");
            EXPECT_EQ(channel.unit, "uJ");
            result.emplace_back(*channel.name, channel.value);
        }
        return result;
    }
};

TEST_F(PowercapEnergyTest, PackagesGraphicsAndMemory) {
    const auto writeAll = [&](std::uint64_t times) {
        write("intel-rapl:0", "package-0", 500 * times);
        write("intel-rapl:0:0", "core", 100 * times);
        write("intel-rapl:0:1", "uncore", 50 * times);
        write("intel-rapl:0:2", "dram", 20 * times);
        write("intel-rapl:1", "package-1", 300 * times);
        write("intel-rapl:1:0", "uncore", 0);
        write("intel-rapl:2", "psys", 1000 * times);
        write("intel-rapl-mmio:0", "package-0", 500 * times);
    };
    writeAll(1);
    EXPECT_THAT(growth(), IsEmpty());
    writeAll(2);
    EXPECT_THAT(growth(), ElementsAre(std::pair("CPU Energy", 450), std::pair("GPU Energy", 50), std::pair("DRAM", 20),
                                      std::pair("CPU Energy", 300)));
    write("intel-rapl:0", "package-0", 100); // wrapped
    EXPECT_EQ(growth()[0].second, 100);
}

TEST_F(PowercapEnergyTest, CountersThatCannotBeReadAreAbsent) {
    EXPECT_FALSE(source.takeSnapshot());
    write("intel-rapl:0", "package-0", 10);
    for (int i = 0; i < 60; ++i)
        source.takeSnapshot();
    EXPECT_THAT(growth(), ElementsAre(std::pair("CPU Energy", 0)));
    folder.write("class/powercap/intel-rapl:0/energy_uj", "-5\n");
    EXPECT_FALSE(source.takeSnapshot()); // the snapshots before stay
    write("intel-rapl:0", "package-0", 40);
    EXPECT_THAT(growth(), ElementsAre(std::pair("CPU Energy", 30)));
}

} // namespace
} // namespace vantrix
