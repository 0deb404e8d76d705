#include "macos/simulated/machine.h"

#include <bit>

#include <net/if.h>
#include <sys/sysctl.h>

namespace vantrix::simulated {
namespace {

constexpr unsigned active = IFF_UP | IFF_RUNNING;

SMCKey floatKey(float value) {
    const auto bits = std::bit_cast<std::array<std::uint8_t, 4>>(value);
    return {"flt ", {bits.begin(), bits.end()}};
}

void furnishKernel(Machine& machine) {
    machine.machTime = 24'000'000'000;
    machine.processes = {{7, "/Applications/Web.app/Contents/MacOS/Web", 1000, 20'000}};
    machine.ticks = {{4'294'967'290, 50, 800, 0}, {200, 100, 1600, 10}};
    machine.pages = vm_statistics64{};
    machine.pages->wire_count = 1000;
    machine.pages->purgeable_count = 200;
    machine.pages->compressor_page_count = 300;
    machine.pages->internal_page_count = 2200;
    machine.setSystemValue("hw.memsize", std::uint64_t{17'179'869'184});
    machine.setSystemValue("vm.swapusage", xsw_usage{.xsu_used = 5'242'880});
    machine.setSystemValue("kern.memorystatus_vm_pressure_level", 2);
    machine.setSystemValue("hw.ncpu", 10);
    machine.setSystemValue("hw.logicalcpu", 10);
    machine.setSystemValue("hw.perflevel0.logicalcpu", 8);
    machine.setSystemValue("hw.perflevel1.logicalcpu", 2);
    machine.systemValues["machdep.cpu.brand_string"] = std::string("Fast\xff Chip") + '\0';
}

void furnishNetwork(Machine& machine) {
    machine.links = {{"lo0", active, AF_LINK, 77, 77},
                     {"lo0", active, AF_INET, 0, 0, {127, 0, 0, 1}},
                     {"en0", active, AF_LINK, 4'294'967'000, 1000},
                     {"en0", active, AF_INET6},
                     {"en0", active, AF_INET, 0, 0, {'\xc0', '\xa8', 1, 24}},
                     {"en5", IFF_UP, AF_LINK, 9, 9},
                     {"gif0", 0, 0}};
    machine.store = {{"State:/Network/Global/IPv4", Dictionary{{"PrimaryInterface", "en0"}}},
                     {"State:/Network/Global/IPv6", Dictionary{{"PrimaryInterface", "en5"}}}};
    machine.interfaces = {{{"name", "en5"}, {"type", "Ethernet"}, {"displayName", "Ethernet Adapter"}},
                          {{"name", "en0"}, {"type", "IEEE80211"}, {"displayName", "Wi-Fi"}}};
    machine.wifi["en0"] = {-52, -92, 866.0, "Home", "en0"};
}

void furnishRegistry(Machine& machine) {
    machine.services = {
        {"IOBlockStorageDriver", {{"Statistics", Dictionary{{"Bytes (Read)", 1'000'000}, {"Bytes (Write)", 500'000}}}}},
        {"IOBlockStorageDriver", {{"Statistics", Dictionary{{"Bytes (Read)", 8}, {"Bytes (Write)", "many"}}}}},
        {"IOBlockStorageDriver", {{"Statistics", "none"}}},
        {"IOAccelerator", {{"PerformanceStatistics", Dictionary{{"Device Utilization %", 20}}}}},
        {"IOAccelerator", {{"PerformanceStatistics", Dictionary{{"GPU Activity(%)", 70.5}}}}},
        {"IOAccelerator", {{"PerformanceStatistics", List{}}}},
        {"AppleSmartBattery",
         {{"CycleCount", 142},
          {"DesignCapacity", 5000},
          {"AppleRawMaxCapacity", 4600},
          {"MaxCapacity", "full"},
          {"Temperature", 3050},
          {"Voltage", 12000},
          {"Amperage", -1500}}},
        {"AppleSMC", {}},
        {"AppleDeviceManagementHIDEventService",
         {{"Product", "Keyboard"}, {"BatteryPercent", 90}, {"DeviceAddress", "aa-bb-cc-dd-ee-01"}}},
        {"AppleDeviceManagementHIDEventService", {{"Product", "Pad"}}}};
    machine.controllerKeys = {{"FNum", {"ui8 ", {1}}},  {"F0Ac", floatKey(2000)}, {"F0Mn", floatKey(1200)},
                              {"F0Mx", floatKey(6000)}, {"PSTR", floatKey(16)},   {"PDTR", floatKey(0)}};
}

void furnishReports(Machine& machine) {
    machine.volume = {{"NSURLVolumeTotalCapacityKey", std::int64_t{500'000'000'000}},
                      {"NSURLVolumeAvailableCapacityForImportantUsageKey", std::int64_t{120'000'000'000}}};
    machine.powerSources = List{Dictionary{{"Type", "InternalBattery"},
                                           {"Current Capacity", 82},
                                           {"Max Capacity", 100},
                                           {"Is Charging", true},
                                           {"Power Source State", "AC Power"},
                                           {"Time to Full Charge", 55}}};
    machine.sensors = {{{"Product", "pACC sensor 1"}, {"celsius", 50.5}},
                       {{"Product", "GPU sensor"}, {"celsius", 40.0}},
                       {{"celsius", 30.0}},
                       {{"Product", "NAND"}}};
    const auto channel = [](const char* name, const char* unit, std::int64_t value) {
        return Dictionary{{"group", "Energy Model"}, {"name", name}, {"unit", unit}, {"value", value}};
    };
    machine.energy = List{channel("EACC_CPU Energy", "mJ", 1000), channel("PCPU Energy", "uJ", 2'000'000),
                          channel("GPU Energy", "nJ", 3'000'000'000)};
}

} // namespace

void furnish(Machine& machine) {
    furnishKernel(machine);
    furnishNetwork(machine);
    furnishRegistry(machine);
    furnishReports(machine);
}

void advance(Machine& machine) {
    machine.machTime += 48'000'000;
    const std::uint32_t passed[2][4] = {{50, 30, 100, 20}, {10, 10, 180, 0}};
    for (std::size_t core = 0; core < 2; ++core) {
        for (std::size_t state = 0; state < 4; ++state)
            machine.ticks->at(core)[state] += passed[core][state];
    }
    for (LinkEntry& link : machine.links) {
        if (link.family == AF_LINK) {
            link.received += 4000;
            link.sent += 2000;
        }
    }
    auto& statistics = std::get<Dictionary>(machine.services[0].second["Statistics"]);
    std::get<std::int64_t>(statistics["Bytes (Read)"]) += 4'000'000;
    std::get<std::int64_t>(statistics["Bytes (Write)"]) += 1'000'000;
}

} // namespace vantrix::simulated
