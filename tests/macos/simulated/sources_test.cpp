#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

#include "macos/kernel/mach_clock.h"
#include "macos/mac_accessories.h"
#include "macos/mac_application_group.h"
#include "macos/processor/mach_processor_ticks.h"
#include "macos/processor/sysctl_information.h"
#include "macos/simulated/instruments.h"
#include "macos/simulated/laptop.h"
#include "platform/diagnosis.h"

namespace vantrix::simulated {
TEST(ApplicationGroup, IsTheFirstOfAListOfTexts) {
    const std::pair<std::optional<Value>, std::optional<std::string>> rows[] = {
        {std::nullopt, std::nullopt},
        {List{"group.one", "group.two"}, "group.one"},
        {List{}, std::nullopt},
        {List{"group.one", 2}, std::nullopt},
        {List{true, "group.two"}, std::nullopt},
        {"group.one", std::nullopt},
        {Dictionary{{"group.one", true}}, std::nullopt},
    };
    for (const auto& [entitlement, group] : rows) {
        Machine machine;
        machine.applicationGroups = entitlement;
        EXPECT_EQ(applicationGroup(), group);
        machine.judge = [](const std::string& call) {
            return call == "SecTaskCreateFromSelf" ? Outcome::fails : Outcome::works;
        };
        EXPECT_EQ(applicationGroup(), std::nullopt);
        EXPECT_EQ(machine.outstanding(), "");
    }
}

TEST(SysctlInformation, ReadsFourBytesAndNothingElse) {
    Machine machine;
    machine.setSystemValue("four", -2);
    machine.setSystemValue("eight", std::int64_t{5});
    machine.setSystemValue("two", std::int16_t{5});
    machine.systemValues["empty"] = "";
    const SysctlInformation information;
    EXPECT_EQ(information.integer("four"), -2);
    EXPECT_EQ(information.integer("eight"), std::nullopt);
    EXPECT_EQ(information.integer("two"), std::nullopt);
    EXPECT_EQ(information.integer("none"), std::nullopt);
    EXPECT_EQ(information.text("empty"), std::nullopt);
    EXPECT_EQ(information.text("none"), std::nullopt);
    EXPECT_EQ(information.processorCount(), 1);
}

/// A profiler that prints the word "report" when it is asked as it ought to be.
class Profiler {
  public:
    Profiler() {
        std::ofstream(path) << "#!/bin/sh\n[ \"$*\" = \"SPBluetoothDataType -xml\" ] && printf report\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    Profiler(const Profiler&) = delete;
    Profiler& operator=(const Profiler&) = delete;
    ~Profiler() { std::filesystem::remove(path); }

    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / "vantrix_profiler";
};

/// The report of a machine that has these lists of connected devices.
List reportOf(const List& connected) {
    return {Dictionary{{"_dataType", "SPBluetoothDataType"},
                       {"_items", List{Dictionary{{"device_connected", connected}}, "an item of another kind"}}},
            Dictionary{{"_items", "none"}}};
}

TEST(MacAccessories, MergesTheReportWithTheRegistry) {
    const Profiler profiler;
    Machine machine;
    furnish(machine);
    const Dictionary keyboard{{"device_address", "AA:BB:CC:DD:EE:01"}, {"device_batteryLevelMain", "70%"}};
    machine.propertyLists.emplace(
        "report", reportOf({Dictionary{{"Desk Keyboard", keyboard}, {"Odd", "no device"}}, "no dictionary",
                            Dictionary{{"Buds", Dictionary{{"device_batteryLevelLeft", "40%"}}}},
                            Dictionary{{"Lamp", Dictionary{{"device_batteryLevelMain", 7}}}}}));
    const auto scan = MacAccessories(profiler.path).scan();
    ASSERT_EQ(scan.accessories.size(), 2u);
    EXPECT_EQ(scan.accessories[0], (AccessoryBattery{"Keyboard", 90, false, "keyboard"})); // what is live wins
    EXPECT_EQ(scan.accessories[1].percent, 40);
    EXPECT_EQ(scan.diagnostics, "system_profiler: 2: Desk Keyboard 70%, Buds 40%, Lamp [no value] | "
                                "registry: 1: Keyboard 90%, Pad [no value]");
    EXPECT_EQ(machine.calls["objc_autoreleasePoolPush"], 1);
    EXPECT_EQ(machine.outstanding(), "");
}

TEST(MacAccessories, DoWithoutAReport) {
    const Profiler profiler;
    Machine machine;
    furnish(machine);
    const std::string alone = "system_profiler: no report | registry: 1: Keyboard 90%, Pad [no value]";
    EXPECT_EQ(MacAccessories(profiler.path).scan().diagnostics, alone); // it is no property list
    EXPECT_EQ(MacAccessories("/nowhere/profiler").scan().diagnostics, alone);
    machine.propertyLists.emplace("report", reportOf({}));
    for (const char* failing : {"CFDataCreate", "CFPropertyListCreateWithData"}) {
        for (const Outcome outcome : {Outcome::fails, Outcome::wrongType}) {
            machine.judge = [&](const std::string& call) { return call == failing ? outcome : Outcome::works; };
            EXPECT_EQ(MacAccessories(profiler.path).scan().diagnostics, alone) << failing;
        }
    }
    machine.judge = nullptr;
    EXPECT_TRUE(MacAccessories(profiler.path).scan().diagnostics.starts_with("system_profiler: 0 |"));
    EXPECT_EQ(machine.outstanding(), "");
}

TEST(MachProcessorTicks, AreOfWholeProcessorsAlone) {
    for (const natural_t told : {1u, 2u, 3u}) {
        Machine machine;
        furnish(machine);
        machine.processorsTold = told;
        std::vector<CPUSampler::Ticks> cores;
        EXPECT_TRUE(MachProcessorTicks().read(cores));
        EXPECT_EQ(cores.size(), std::min<std::size_t>(told, machine.ticks->size()));
    }
}

TEST(MachClock, FollowsTheTimebase) {
    Machine machine;
    machine.machTime = 3'000'000'000;
    EXPECT_EQ(MachClock().uptime(), 125.0);
    machine.timebase = {1, 1};
    EXPECT_EQ(MachClock().uptime(), 3.0);
}

TEST(Instruments, ReadTheRegistryAndPowerSourcesAfresh) {
    Machine machine;
    furnish(machine);
    Instruments instruments;
    const auto first = instruments.pass();
    EXPECT_EQ(first.at("battery"), "82 1 1 55");
    EXPECT_EQ(first.at("gpu"), "0.705");
    machine.powerSources = List{Dictionary{{"Type", "InternalBattery"},
                                           {"Current Capacity", 20},
                                           {"Max Capacity", 50},
                                           {"Power Source State", "Battery Power"},
                                           {"Time to Empty", 410}}};
    machine.services = {
        {"AppleSmartBattery",
         {{"DesignCapacity", 5000}, {"MaxCapacity", 4000}, {"Voltage", 12000}, {"InstantAmperage", -1000}}},
        {"IOAccelerator", {{"PerformanceStatistics", Dictionary{{"Device Utilization %", 20}}}}}};
    const auto second = instruments.pass();
    EXPECT_EQ(second.at("battery"), "40 0 0 410");
    EXPECT_EQ(second.at("registers"), "- 80 - 12");
    EXPECT_EQ(second.at("gpu"), "0.2");
}

TEST(ProcessStatistics, AreInSecondsAndBytes) {
    Machine machine;
    furnish(machine);
    const ProcessStatistics expected{.uptime = 990.0,
                                     .userTime = 2.0,
                                     .systemTime = 1.0,
                                     .residentBytes = 50'000'000,
                                     .ownBytes = 20'000'000,
                                     .wakeUps = 1234,
                                     .threads = 6};
    EXPECT_EQ(processStatistics(42), expected);
    EXPECT_EQ(processStatistics(43), std::nullopt);
    machine.judge = [](const std::string& call) { return call == "proc_pid_rusage" ? Outcome::fails : Outcome::works; };
    EXPECT_EQ(processStatistics(42), std::nullopt);
}

} // namespace vantrix::simulated
