#include <gtest/gtest.h>

#include "macos/kernel/mach_clock.h"
#include "macos/mac_accessories.h"
#include "macos/mac_application_group.h"
#include "macos/mac_signature.h"
#include "macos/processes/process_records.h"
#include "macos/processor/sysctl_information.h"
#include "macos/simulated/machine.h"
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
        EXPECT_EQ(machine.outstanding(), "");
    }
}

TEST(Signature, IsSomebodysWhereItHasCertificates) {
    const std::pair<std::optional<Dictionary>, bool> rows[] = {
        {std::nullopt, false},
        {Dictionary{{"flags", 2}}, false}, // ad hoc
        {Dictionary{{"certificates", List{}}}, false},
        {Dictionary{{"certificates", List{"of a developer"}}}, true},
    };
    for (const auto& [signature, isSomebodys] : rows) {
        Machine machine;
        machine.signature = signature;
        EXPECT_EQ(isSignedByIdentity(), isSomebodys);
        machine.judge = [](const std::string&) { return Outcome::fails; };
        EXPECT_FALSE(isSignedByIdentity());
        EXPECT_EQ(machine.outstanding(), "");
    }
}

TEST(SysctlInformation, ReadsFourBytesAndNothingElse) {
    Machine machine;
    machine.setSystemValue("four", -2);
    machine.setSystemValue("eight", std::int64_t{5});
    machine.systemValues["empty"] = "";
    const SysctlInformation information;
    EXPECT_EQ(information.integer("four"), -2);
    EXPECT_EQ(information.integer("eight"), std::nullopt);
    EXPECT_EQ(information.text("empty"), std::nullopt);
}

TEST(MacAccessories, MergesTheReportWithTheRegistry) {
    Machine machine;
    furnish(machine);
    const auto diagnostics = [] { return MacAccessories("/bin/echo").scan().diagnostics; };
    const std::string registry = "registry: 1: Keyboard 90%, Pad [no value]";
    const std::string alone = "system_profiler: no report | " + registry;
    EXPECT_EQ(diagnostics(), alone); // what is printed is no property list

    const Dictionary devices{{"Buds", Dictionary{{"device_batteryLevelLeft", "40%"}}},
                             {"Lamp", Dictionary{{"device_batteryLevelMain", 7}}},
                             {"Odd", "no device"}};
    const Dictionary item{{"device_connected", List{devices, "no dictionary"}}};
    machine.propertyLists["SPBluetoothDataType -xml\n"] =
        List{Dictionary{{"_items", List{item, "of another kind"}}}, "no part"};
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

TEST(ProcessRecords, NamesBundlesAndLeavesOutWhatMayNotBeAsked) {
    Machine machine;
    std::vector<ProcessSampler::Process> none;
    EXPECT_FALSE(ProcessRecords().read(none));
    machine.setSystemValue("hw.activecpu", 2);
    machine.processes = {{70, "/Applications/Web.app/Contents/Web Helper.app/Contents/MacOS/Web Helper", 0, 1000},
                         {12, "/Applications/Web.app/Contents/MacOS/Web", 0, 500},
                         {30, "/usr/libexec/thing", 0, 400},
                         {31, "", 0, 10},
                         {90, "/sbin/other", 0, 9000, 1, false}};
    ProcessRecords records;
    const MachClock clock;
    ProcessSampler sampler(records, clock);
    sampler.sample();
    machine.machTime += 24'000'000 * 2;
    machine.processes[0].userTime = 24'000'000;
    const ProcessSample sample = *sampler.sample();
    EXPECT_EQ(sample.busiest, (std::vector<ProgramShare>{{"Web", "/Applications/Web.app", 2, 0.25, 1500}}));
    ASSERT_EQ(sample.largest.size(), 3u);
    EXPECT_EQ(sample.largest[1].name, "thing");
    EXPECT_EQ(sample.largest[2].name, "odd name");
    const auto asked = machine.calls["proc_pidpath"];
    machine.machTime += 24'000'000;
    sampler.sample();
    EXPECT_EQ(machine.calls["proc_pidpath"], asked); // known by now
}

TEST(ProcessStatistics, AreInSecondsAndBytes) {
    Machine machine;
    machine.machTime = 480'000'000;
    EXPECT_EQ(processStatistics(42), (ProcessStatistics{10, 2, 1, 50'000, 20'000, 12, 6})); // in their order
    EXPECT_EQ(processStatistics(43), std::nullopt);
}

} // namespace vantrix::simulated
