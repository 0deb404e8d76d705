#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "macos/mac_accessories.h"
#include "macos/mac_application_group.h"
#include "macos/processor/mach_processor_ticks.h"
#include "macos/processor/sysctl_information.h"
#include "macos/simulated/laptop.h"
#include "platform/diagnosis.h"

namespace vantrix::simulated {

TEST(ApplicationGroup, IsTheFirstOfAListOfTexts) {
    const std::pair<std::optional<Value>, std::optional<std::string>> rows[] = {
        {std::nullopt, std::nullopt},
        {List{"group.one", "group.two"}, "group.one"},
        {List{"group.one", 2}, std::nullopt},
        {"group.one", std::nullopt},
    };
    for (const auto& [entitlement, group] : rows) {
        Machine machine;
        machine.applicationGroups = entitlement;
        EXPECT_EQ(applicationGroup(), group);
        machine.judge = [](const std::string&) { return Outcome::fails; };
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
    EXPECT_EQ(information.text("empty"), std::nullopt);
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

TEST(MacAccessories, MergesTheReportWithTheRegistry) {
    const Profiler profiler;
    Machine machine;
    furnish(machine);
    const auto diagnostics = [&] { return MacAccessories(profiler.path).scan().diagnostics; };
    const std::string registry = "registry: 1: Keyboard 90%, Pad [no value]";
    const std::string alone = "system_profiler: no report | " + registry;
    EXPECT_EQ(diagnostics(), alone); // what is printed is no property list

    const Dictionary devices{{"Buds", Dictionary{{"device_batteryLevelLeft", "40%"}}},
                             {"Lamp", Dictionary{{"device_batteryLevelMain", 7}}},
                             {"Odd", "no device"}};
    const Dictionary item{{"device_connected", List{devices, "no dictionary"}}};
    machine.propertyLists["report"] = List{Dictionary{{"_items", List{item, "of another kind"}}}, "no part"};
    EXPECT_EQ(diagnostics(), "system_profiler: 1: Buds 40%, Lamp [no value] | " + registry);
    EXPECT_EQ(machine.outstanding(), "");

    for (const char* failing : {"CFDataCreate", "CFPropertyListCreateWithData"}) {
        for (const Outcome outcome : {Outcome::fails, Outcome::wrongType}) {
            machine.judge = [&](const std::string& call) { return call == failing ? outcome : Outcome::works; };
            EXPECT_EQ(diagnostics(), alone) << failing;
        }
    }
    EXPECT_EQ(machine.outstanding(), "");
}

TEST(MachProcessorTicks, AreOfWholeProcessorsAlone) {
    Machine machine;
    furnish(machine);
    for (const natural_t told : {1u, 3u}) {
        machine.processorsTold = told;
        std::vector<CPUSampler::Ticks> cores;
        EXPECT_TRUE(MachProcessorTicks().read(cores));
        EXPECT_EQ(cores.size(), std::min<std::size_t>(told, machine.ticks->size()));
    }
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
}

} // namespace vantrix::simulated
