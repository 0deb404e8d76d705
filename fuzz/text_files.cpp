#include <gtest/gtest.h>

#include "accessories/bluetooth_uuid.h"
#include "fuzz/targets.h"
#include "linux/disks/proc_diskstats.h"
#include "linux/memory/proc_meminfo.h"
#include "linux/memory/proc_pressure.h"
#include "linux/network/proc_net_dev.h"
#include "linux/network/proc_net_route.h"
#include "linux/power_supply/accessory_name.h"
#include "linux/power_supply/power_supply.h"
#include "linux/processor/cpu_topology.h"
#include "linux/processor/proc_stat.h"
#include "linux/processor/processor_brand.h"
#include "support/utf8.h"

namespace vantrix::fuzz {
namespace {

/// What is made tidy once is tidy.
void expectTidied(std::string_view text) {
    const auto expectStable = [&](auto tidy) { EXPECT_EQ(tidy(tidy(text)), tidy(text)); };
    expectStable(repairedUTF8);
    expectStable(withoutTerminalControls);
    expectStable(findAddress);
    expectStable([](std::string_view name) { return tidiedName(name).value_or(std::string()); });
    EXPECT_EQ(BluetoothUUID(BluetoothUUID(text).shortest()), BluetoothUUID(text));
}

} // namespace

/// One file of the kernel, given to all that read any.
void textFiles(std::string_view text) {
    std::vector<CoreTicks> cores;
    EXPECT_TRUE(!parseProcStat(text, cores) || !cores.empty());
    std::vector<NetDevLine> ports;
    parseNetDev(text, ports);
    std::vector<DiskStatsLine> disks;
    parseDiskStats(text, disks);
    for (const DiskStatsLine& disk : disks)
        parseDiskCounters(disk.counters);
    EXPECT_NE(text.find(parseDefaultRoute(text)), text.npos);
    EXPECT_NE(text.find(parseDefaultIPv6Route(text)), text.npos);
    const auto cpus = parseCPUList(text).value_or(std::vector<int>());
    EXPECT_TRUE(std::ranges::is_sorted(cpus, std::ranges::less_equal()));
    const auto info = parseMemInfo(text);
    EXPECT_TRUE(!info || (info->memTotal.value_or(0) - 1 < largestMemory && info->memFree));
    const PressureStall stall = parsePressure(text).value_or(PressureStall());
    EXPECT_TRUE(std::min(stall.some, stall.full) >= 0.0 && std::max(stall.some, stall.full) <= 100.0);
    parseSupply(text);
    tellingName(text);
    parseModelName(text);
    expectTidied(text);
}

} // namespace vantrix::fuzz
