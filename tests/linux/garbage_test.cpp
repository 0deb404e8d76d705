#include <algorithm>
#include <random>

#include <malloc.h>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/read_in_place.h"
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
    samplers.networkInfo->sample(true, 3);
    samplers.disk.sample();
    const ProcessSample* programs = samplers.processes->sample();
    EXPECT_TRUE(programs == nullptr || std::ranges::all_of(programs->busiest, isFraction, &ProgramShare::cpu));
    samplers.sources.information->text("machdep.cpu.brand_string");
    samplers.sources.information->integer("hw.perflevel0.logicalcpu");
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

/// Takes every device away and brings it back.
void unplugAndPlug(const fakes::FixtureMachine& machine, Samplers& samplers) {
    const std::string away = machine.path("away");
    for (const char* folder : {"hwmon", "power_supply", "drm", "powercap", "net"}) {
        std::error_code none; // of these devices
        std::vector<std::filesystem::path> devices;
        for (const auto& device : std::filesystem::directory_iterator(machine.path("sys/class/") + folder, none))
            devices.push_back(device.path());
        for (const auto& device : devices) {
            std::filesystem::rename(device, away);
            expectPlausible(samplers);
            std::filesystem::rename(away, device);
            expectPlausible(samplers);
        }
    }
}

std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// Chips and zones lose their names, sensors and counters their numbers; what is shown stays plausible, whether the
/// machine was known before or not, and comes back whole, also where devices come and go. And nothing grows.
TEST(Garbage, NoFileMakesAReadingImplausible) {
    const ReadInPlace inPlace;
    const struct {
        const char* machine;
        int times;
        std::size_t sensors;
    } rows[] = {
        {"zram-in-use", 400, 0},          {"laptop-hybrid-cores", 30, 0},        {"zfs-host", 30, 0},
        {"programs-at-work", 30, 0},      {"two-packs-and-accessories", 100, 0}, {"gpu-asleep-beside-another", 100, 0},
        {"laptop-with-two-packs", 20, 6}, {"laptop-with-everything", 1, 35}};
    constexpr int allIsFound = 605; // devices are looked for every 600 passes, whatever happens
    Mutator mutator;
    for (const auto& row : rows) {
        const fakes::FixtureMachine machine(row.machine);
        Samplers samplers(makeSamplingSources(machine.roots()));
        const SensorsSample sensors = samplers.sensors.sample();
        EXPECT_EQ(sensors.all.size(), row.sensors);
        const auto battery = samplers.battery->sample();
        const auto memory = samplers.memory.sample();
        EXPECT_TRUE(memory.has_value());
        unplugAndPlug(machine, samplers);
        for (int pass = 0; pass < allIsFound; ++pass)
            expectPlausible(samplers);
        const auto files = openFiles();
        const std::size_t bytes = mallinfo2().uordblks; // always the same under a sanitizer
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
        for (int round = 0; round < 10; ++round)
            unplugAndPlug(machine, samplers);
        for (int pass = 0; pass < allIsFound; ++pass)
            expectPlausible(samplers);
        EXPECT_EQ(samplers.sensors.sample().all, sensors.all);
        EXPECT_LT(openFiles(), files + 8); // one more for each change would be more
        EXPECT_LT(mallinfo2().uordblks, bytes + 64 * 1024);
        EXPECT_EQ(samplers.battery->sample(), battery);
        EXPECT_EQ(samplers.memory.sample(), memory);
        EXPECT_NE(samplers.cpu.sample(), nullptr);
    }
}

} // namespace
} // namespace vantrix
