#include <cctype>

#include <malloc.h>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "fakes/plausible_pass.h"
#include "linux/read_in_place.h"

namespace vantrix {
namespace {

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
            fakes::plausiblePass(samplers);
            std::filesystem::rename(away, device);
            fakes::plausiblePass(samplers);
        }
    }
}

/// The text with `number` in the place of each of its own.
std::string numbered(const std::string& text, const char* number) {
    std::string other;
    bool wasDigit = false;
    for (const char letter : text) {
        const bool isDigit = std::isdigit(static_cast<unsigned char>(letter)) != 0;
        if (!isDigit)
            other += letter;
        else if (!wasDigit)
            other += number;
        wasDigit = isDigit;
    }
    return other;
}

std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// Chips and zones lose their names, sensors and counters their numbers; what is shown stays plausible, and comes back
/// whole, also where devices come and go. And nothing grows. Other damage is left to the targets of fuzz/.
TEST(Garbage, NoFileMakesAReadingImplausible) {
    const ReadInPlace inPlace;
    const struct {
        const char* machine;
        std::size_t sensors;
    } rows[] = {{"zram-in-use", 0},           {"laptop-hybrid-cores", 0},       {"zfs-host", 0},
                {"programs-at-work", 0},      {"two-packs-and-accessories", 0}, {"gpu-asleep-beside-another", 0},
                {"laptop-with-two-packs", 6}, {"laptop-with-everything", 35}};
    constexpr int allIsFound = 605; // devices are looked for every 600 passes, whatever happens
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
            fakes::plausiblePass(samplers);
        const auto files = openFiles();
        const std::size_t bytes = mallinfo2().uordblks; // always the same under a sanitizer
        for (const std::string& file : machine.files()) {
            SCOPED_TRACE(row.machine + ('/' + file));
            const std::string text = machine.read(file);
            std::vector<std::string> damages{"", text.substr(0, text.size() / 2), "\xff\xfe" + text + text};
            for (const char* number : {"nan", "-1", "18446744073709551615", "36028797018963967"})
                damages.push_back(numbered(text, number));
            for (const std::string& damaged : damages) {
                machine.write(file, damaged);
                fakes::plausiblePass(samplers);
            }
            Samplers fresh(makeSamplingSources(machine.roots()));
            fakes::plausiblePass(fresh);
            machine.write(file, text);
        }
        for (int round = 0; round < 10; ++round)
            unplugAndPlug(machine, samplers);
        for (int pass = 0; pass < allIsFound; ++pass)
            fakes::plausiblePass(samplers);
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
