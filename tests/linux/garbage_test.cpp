#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "accessories/reported_devices.h"
#include "fakes/fixture_machine.h"
#include "linux/disks/proc_diskstats.h"
#include "linux/graphics/gpu_meter.h"
#include "linux/memory/linux_memory_source.h"
#include "linux/network/proc_net_dev.h"
#include "linux/network/proc_net_route.h"
#include "linux/network/route_messages.h"
#include "linux/network/rtnetlink_messages.h"
#include "linux/network/sysfs_links.h"
#include "linux/power_supply/battery_packs.h"
#include "linux/power_supply/power_supply_accessories.h"
#include "linux/processor/cpu_topology.h"
#include "linux/processor/proc_stat.h"
#include "linux/processor/processor_brand.h"
#include "linux/sensors/sensor_files.h"
#include "sensors/sensors_sampler.h"

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
        const std::size_t place = below(text.size() + 1);
        const std::string_view odd[] = {"99999999999999999999999",
                                        "18446744073709551615",
                                        "36028797018963967",
                                        "-1",
                                        ":",
                                        "\n",
                                        " ",
                                        "en",
                                        "cpu7 ",
                                        "../",
                                        "nan",
                                        "1e308",
                                        "\xff\xfe"};
        switch (below(7)) {
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
            if (place < text.size())
                text[place] = static_cast<char>(below(256));
            break;
        case 4:
            text.insert(place, text.substr(below(text.size() + 1), 200));
            break;
        case 5:
            text.insert(place, below(3), '\0');
            break;
        default:
            replaceDigits(text, place, odd[below(3)]);
        }
    }

    static void replaceDigits(std::string& text, std::size_t from, std::string_view by) {
        const auto begin = text.find_first_of("0123456789", from);
        if (begin == std::string::npos)
            return;
        const auto end = std::min(text.find_first_not_of("0123456789", begin), text.size());
        text.replace(begin, end - begin, by);
    }

    std::mt19937 random_{20240229};
};

void parseWithEverything(const std::string& text) {
    std::vector<CoreTicks> cores;
    std::vector<NetDevLine> links;
    std::vector<DiskStatsLine> disks;
    parseProcStat(text, cores);
    parseNetDev(text, links);
    if (parseDiskStats(text, disks)) {
        for (const DiskStatsLine& disk : disks)
            parseDiskCounters(disk.counters);
    }
    const auto info = parseMemInfo(text);
    const auto stall = parsePressure(text);
    if (info) {
        EXPECT_EQ(memoryStatistics(*info, stall, 0).pageSize, 1024u);
    }
    if (stall) {
        EXPECT_TRUE(stall->some >= 0.0 && stall->full <= 100.0);
    }
    parseZramMemory(text);
    parseLinkFlags(text);
    parseSensorValue(text);
    EXPECT_LE(parseCPUList(text).value_or(std::vector<int>()).size(), 65536u);
    EXPECT_NE(parseModelName(text), "");
    parseLoad(text);
    findAddress(text);
    ReportedDevices().addBluetoothDevice("", {{"device_batteryLevelMain", text}});
    if (const auto pack = parseSupply(text))
        combinePacks({&*pack, 1}, std::nullopt);
    std::string_view datagram = text;
    while (takeLinkMessage(datagram)) {
    }
    datagram = text;
    while (takeRouteMessage(datagram)) {
    }
    EXPECT_LT(parseDefaultRoute(text).size() + parseDefaultIPv6Route(text).size(), text.size() + 1);
}

TEST(Garbage, NoParserStumbles) {
    Mutator mutator;
    for (const char* machine : {"laptop-hybrid-cores", "zram-in-use", "two-packs-and-accessories"}) {
        const fakes::FixtureMachine folder(machine);
        for (const std::string& name : folder.files()) {
            const std::string text = folder.read(name);
            for (int i = 0; i < 1000; ++i)
                parseWithEverything(mutator.damaged(text));
        }
    }
}

/// The samplers end the program on sums past 64 bits, so no file may make a source hand out such numbers.
TEST(Garbage, NoFileEndsASamplingPass) {
    Mutator mutator;
    const fakes::FixtureMachine folder("zram-in-use");
    const auto sources = makeSamplingSources(folder.roots());
    CPUSampler cpu(*sources.cpu);
    MemorySampler memory(*sources.memory);
    NetworkSampler network(*sources.network, *sources.clock);
    DiskSampler disk(*sources.disks, *sources.volume, *sources.clock);
    for (const std::string& name : folder.files()) {
        const std::string text = folder.read(name);
        for (int i = 0; i < 400; ++i) {
            folder.write(name, mutator.damaged(text));
            if (const auto* sample = cpu.sample()) {
                EXPECT_GE(sample->total, 0.0);
                EXPECT_LE(sample->total, 1.0);
            }
            EXPECT_LE(usedFraction(memory.sample().value_or(MemorySample())), 1.0);
            network.sample();
            disk.sample();
        }
        folder.write(name, text);
    }
    EXPECT_TRUE(memory.sample().has_value()); // the files are whole again
    EXPECT_NE(cpu.sample(), nullptr);
}

TEST(Garbage, NoFileMakesNonsenseOfBatteriesAndGPUs) {
    Mutator mutator;
    for (const char* machine : {"two-packs-and-accessories", "gpu-asleep-beside-another"}) {
        const fakes::FixtureMachine folder(machine);
        const auto sources = makeSamplingSources(folder.roots());
        GPUSampler gpu(*sources.gpu);
        BatterySampler battery(*sources.battery);
        for (const std::string& name : folder.files()) {
            const std::string text = folder.read(name);
            for (int i = 0; i < 100; ++i) {
                folder.write(name, mutator.damaged(text));
                const double load = gpu.sample().value_or(0.0);
                EXPECT_TRUE(load >= 0.0 && load <= 1.0) << load;
                const auto sample = battery.sample().value_or(BatterySample());
                EXPECT_TRUE(sample.percent >= 0 && sample.percent <= 100) << sample.percent;
                EXPECT_LT(sample.watts.value_or(0.0), 400.0);
                EXPECT_LE(sample.temperature.value_or(0.0), 150.0);
            }
            for (const auto& accessory : sources.accessories->scan().accessories)
                EXPECT_TRUE(accessory.percent >= 0 && accessory.percent <= 100) << accessory.percent;
            folder.write(name, text);
        }
    }
}

bool isPlausible(const SensorsSample& sample) {
    const auto isTemperature = [](double value) { return value > 0.0 && value < 150.0; };
    const auto isFan = [](const FanReading& fan) { return fan.rpm >= 0.0 && fan.rpm < 20000.0; };
    return isTemperature(sample.cpu.value_or(1.0)) && isTemperature(sample.cpuHottest.value_or(1.0)) &&
           std::ranges::all_of(sample.all, isTemperature, &TemperatureReading::value) &&
           std::ranges::all_of(sample.fans, isFan) && sample.systemPower.value_or(1.0) < 600.0;
}

/// Chips and zones lose their names, sensors their numbers; all that is shown stays plausible, and comes back whole.
TEST(Garbage, NoFileMakesASensorImplausible) {
    Mutator mutator;
    const fakes::FixtureMachine folder("laptop-many-sensors");
    const auto sources = makeSamplingSources(folder.roots());
    const auto makeSampler = [](const SamplingSources& from) {
        return SensorsSampler(from.sensorKeys.get(), from.temperatures.get(), from.energy.get(), *from.clock);
    };
    SensorsSampler longRunning = makeSampler(sources);
    const SensorsSample whole = longRunning.sample();
    EXPECT_EQ(whole.all.size(), 35u);
    for (const std::string& name : folder.files()) {
        const std::string text = folder.read(name);
        for (int i = 0; i < 3; ++i) {
            folder.write(name, mutator.damaged(text));
            EXPECT_TRUE(isPlausible(longRunning.sample())) << name;
            const auto fresh = makeSamplingSources(folder.roots());
            EXPECT_TRUE(isPlausible(makeSampler(fresh).sample())) << name;
        }
        folder.write(name, text);
    }
    for (int i = 0; i < 60; ++i)
        longRunning.sample();
    EXPECT_EQ(longRunning.sample().all, whole.all);
}

TEST(Garbage, LongTextsAreTakenOrRefusedWhole) {
    const std::string nonsense[] = {std::string(3 << 20, '\n'), std::string(3 << 20, '9'), std::string(3 << 20, ':'),
                                    std::string(3 << 20, '\0'), std::string(3 << 20, ' ')};
    for (const std::string& text : nonsense)
        parseWithEverything(text);
}

} // namespace
} // namespace vantrix
