#include <gtest/gtest.h>

#include "accessories/bluetooth_battery_reader.h"
#include "fakes/fake_bluetooth.h"
#include "macos/mac_accessories.h"
#include "macos/mac_application_group.h"
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

// The system keeps the address of an LE device to itself and gives it an identifier, which the report lacks.
TEST(MacAccessories, TwoOfANameStayTwoBesideTheirLiveLevels) {
    Machine machine;
    const auto pad = [](const char* address, const char* level) {
        return Dictionary{{"Pad", Dictionary{{"device_address", address}, {"device_batteryLevelMain", level}}}};
    };
    const List connected{pad("AA:BB:CC:DD:EE:01", "80%"), pad("AA:BB:CC:DD:EE:02", "20%")};
    machine.propertyLists["SPBluetoothDataType -xml\n"] =
        List{Dictionary{{"_items", List{Dictionary{{"device_connected", connected}}}}}};

    fakes::FakeBluetooth bluetooth;
    Bluetooth parts = bluetooth.make();
    BluetoothBatteryReader reader(std::move(parts.central), nullptr, std::move(parts.timer));
    bluetooth.add("3F2A", "Pad", 19);
    bluetooth.add("71C0", "Pad", 79);
    bluetooth.add("9B55", "Pad", 50);
    bluetooth.central->become(BluetoothState::poweredOn);
    std::string found;
    for (const auto& one : combineAccessories(MacAccessories("/bin/echo").scan().accessories, reader.readings()))
        found += one.address + ' ' + one.identifier + ' ' + std::to_string(one.battery.percent) + "%, ";
    EXPECT_EQ(found, "AA:BB:CC:DD:EE:01 71C0 79%, AA:BB:CC:DD:EE:02 3F2A 19%,  9B55 50%, ");
}

TEST(ProcessStatistics, AreInSecondsAndBytes) {
    Machine machine;
    machine.machTime = 480'000'000;
    EXPECT_EQ(processStatistics(42), (ProcessStatistics{10, 2, 1, 50'000, 20'000, 12, 6})); // in their order
    EXPECT_EQ(processStatistics(43), std::nullopt);
}

} // namespace vantrix::simulated
