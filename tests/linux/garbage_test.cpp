#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "accessories/reported_devices.h"
#include "fakes/fixture_machine.h"
#include "linux/network/link_messages.h"
#include "linux/network/proc_net_route.h"
#include "linux/network/route_messages.h"
#include "linux/power_supply/accessory_name.h"
#include "linux/processor/cpu_topology.h"
#include "linux/processor/processor_brand.h"
#include "monitor/samplers.h"

namespace vantrix {
namespace {

/// Damages texts the same way in every run.
class Mutator {
  public:
    std::string damaged(std::string text) {
        for (std::size_t count = 1 + below(4); count > 0; --count)
            damageOnce(text);
        return text;
    }

  private:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    void damageOnce(std::string& text) {
        const std::string_view numbers[] = {"18446744073709551615", "99999999999999999999999", "36028797018963967"};
        const std::string_view odd[] = {"-1", ":", "\n", " ", "en", "cpu7 ", "../", "nan", "1e308", "\xff\xfe"};
        const std::size_t place = below(text.size() + 1);
        switch (below(5)) {
        case 0:
            text.resize(place);
            break;
        case 1:
            text.insert(place, odd[below(std::size(odd))]);
            break;
        case 2:
            text.erase(place, below(40));
            break;
        case 3:
            text.replace(place, 1, 1, static_cast<char>(below(256)));
            break;
        default:
            if (const auto begin = text.find_first_of("0123456789", place); begin != std::string::npos)
                text.replace(begin, text.find_first_not_of("0123456789", begin) - begin,
                             numbers[below(std::size(numbers))]);
        }
    }

    std::mt19937 random_{20240229};
};

/// The parsers that the passes below do not reach.
void parseWithTheRest(const std::string& text) {
    EXPECT_LE(parseCPUList(text).value_or(std::vector<int>()).size(), 65536u);
    EXPECT_NE(parseModelName(text), "");
    findAddress(text);
    ReportedDevices().addBluetoothDevice("", {{"device_batteryLevelMain", text}});
    std::string_view datagram = text;
    while (const auto message = takeNetlinkMessage(datagram)) {
        parseLinkMessage(*message);
        parseRouteMessage(*message);
    }
    EXPECT_LT(parseDefaultRoute(text).size() + parseDefaultIPv6Route(text).size(), text.size() + 1);
}

TEST(Garbage, NoParserStumbles) {
    Mutator mutator;
    for (const char* machine : {"laptop-hybrid-cores", "zram-in-use", "two-packs-and-accessories"}) {
        const fakes::FixtureMachine tree(machine);
        for (const std::string& file : tree.files()) {
            const std::string text = tree.read(file);
            for (int i = 0; i < 1000; ++i)
                parseWithTheRest(mutator.damaged(text));
        }
    }
}

bool isFraction(double value) {
    return value >= 0.0 && value <= 1.0;
}

bool isTemperature(double value) {
    return value > 0.0 && value < 150.0;
}

/// One pass of all. The samplers end the program on sums past 64 bits, so no file may make a source hand out such
/// numbers.
void expectPlausible(Samplers& samplers) {
    const CPUSample* cpu = samplers.cpu.sample();
    EXPECT_TRUE(isFraction(cpu ? cpu->total : 0.0)) << cpu->total;
    EXPECT_TRUE(isFraction(usedFraction(samplers.memory.sample().value_or(MemorySample()))));
    samplers.network.sample();
    samplers.disk.sample();
    EXPECT_TRUE(isFraction(samplers.gpu->sample().value_or(0.0)));
    const BatterySample battery = samplers.battery->sample().value_or(BatterySample());
    EXPECT_TRUE(battery.percent >= 0 && battery.percent <= 100) << battery.percent;
    EXPECT_LT(battery.watts.value_or(0.0), 400.0);
    EXPECT_LE(battery.temperature.value_or(0.0), 150.0);
    const auto isFan = [](const FanReading& fan) { return fan.rpm >= 0.0 && fan.rpm < 20000.0; };
    const SensorsSample& sensors = samplers.sensors.sample();
    EXPECT_TRUE(isTemperature(sensors.cpu.value_or(1.0)) && isTemperature(sensors.cpuHottest.value_or(1.0)));
    EXPECT_TRUE(std::ranges::all_of(sensors.all, isTemperature, &TemperatureReading::value));
    EXPECT_TRUE(std::ranges::all_of(sensors.fans, isFan));
    EXPECT_LT(sensors.systemPower.value_or(1.0), 600.0);
    for (const auto& accessory : samplers.sources.accessories->scan().accessories)
        EXPECT_TRUE(accessory.battery.percent >= 0 && accessory.battery.percent <= 100) << accessory.battery.percent;
}

/// Chips and zones lose their names, sensors and counters their numbers; what is shown stays plausible, whether the
/// machine was known before or not, and comes back whole.
TEST(Garbage, NoFileMakesAReadingImplausible) {
    const struct {
        const char* machine;
        int times;
        std::size_t sensors;
    } rows[] = {{"zram-in-use", 400, 0},
                {"zfs-host", 30, 0},
                {"two-packs-and-accessories", 100, 0},
                {"gpu-asleep-beside-another", 100, 0},
                {"laptop-with-two-packs", 20, 6},
                {"laptop-many-sensors", 3, 35}};
    Mutator mutator;
    for (const auto& row : rows) {
        const fakes::FixtureMachine machine(row.machine);
        Samplers samplers(makeSamplingSources(machine.roots()));
        const SensorsSample sensors = samplers.sensors.sample();
        EXPECT_EQ(sensors.all.size(), row.sensors);
        const auto battery = samplers.battery->sample();
        const auto memory = samplers.memory.sample();
        EXPECT_TRUE(memory.has_value());
        for (const std::string& file : machine.files()) {
            SCOPED_TRACE(row.machine + ('/' + file));
            const std::string text = machine.read(file);
            for (int i = 0; i < row.times; ++i) {
                machine.write(file, mutator.damaged(text));
                expectPlausible(samplers);
                if (i >= 3)
                    continue;
                Samplers fresh(makeSamplingSources(machine.roots()));
                expectPlausible(fresh);
            }
            machine.write(file, text);
        }
        for (int pass = 0; pass < 60; ++pass)
            expectPlausible(samplers);
        EXPECT_EQ(samplers.sensors.sample().all, sensors.all);
        EXPECT_EQ(samplers.battery->sample(), battery);
        EXPECT_EQ(samplers.memory.sample(), memory);
        EXPECT_NE(samplers.cpu.sample(), nullptr);
    }
}

} // namespace
} // namespace vantrix
