#include "linux/memory/linux_memory_source.h"

namespace vantrix {
namespace {

std::uint64_t floorDifference(std::uint64_t a, std::uint64_t b) {
    return a > b ? a - b : 0;
}

std::uint64_t internalMemory(const MemInfo& info) {
    return info.anonPages.value_or(0) + info.shmem.value_or(0);
}

/// Memory that cannot be evicted and is not anonymous. Locked anonymous pages are on neither the active nor the
/// inactive list, but are counted as internal memory already.
std::uint64_t lockedFileMemory(const MemInfo& info) {
    const auto unevictable = info.unevictable.value_or(info.mlocked.value_or(0));
    const auto listed = info.activeAnon.value_or(0) + info.inactiveAnon.value_or(0);
    const auto lockedAnonymous = floorDifference(internalMemory(info), listed);
    return floorDifference(unevictable, lockedAnonymous);
}

std::uint64_t wiredMemory(const MemInfo& info) {
    return info.sUnreclaim.value_or(0) + info.kernelStack.value_or(0) + info.pageTables.value_or(0) +
           info.secPageTables.value_or(0) + info.percpu.value_or(0) + info.hugetlb.value_or(0) + lockedFileMemory(info);
}

std::uint64_t availableMemory(const MemInfo& info) {
    if (info.memAvailable)
        return *info.memAvailable;
    // Memory in files counts as cached too, but cannot be dropped.
    return info.memFree.value_or(0) + info.buffers.value_or(0) + info.sReclaimable.value_or(0) +
           floorDifference(info.cached.value_or(0), info.shmem.value_or(0));
}

/// 1 normal, 2 warning, 4 critical. Stalls count only where memory is short as well: a group of processes that runs
/// into its own limit stalls on a machine with plenty.
std::int64_t pressureLevel(const MemInfo& info, const PressureStall& stall) {
    constexpr double longStall = 20.0;
    const auto available = availableMemory(info) * 100;
    const auto total = info.memTotal.value_or(0);
    const bool isShort = available < total * 25;
    if (available < total * 5 || (isShort && stall.full >= longStall))
        return 4;
    if (available < total * 12 || (isShort && stall.some >= longStall))
        return 2;
    return 1;
}

} // namespace

MemorySampler::Statistics memoryStatistics(const MemInfo& info, const std::optional<PressureStall>& stall,
                                           std::uint64_t zramBytes) {
    MemorySampler::Statistics statistics;
    statistics.pageSize = 1024;
    statistics.internalPageCount = internalMemory(info);
    statistics.wireCount = wiredMemory(info);
    statistics.compressorPageCount = info.zswap.value_or(0) + zramBytes / statistics.pageSize;
    statistics.physicalMemory = info.memTotal.value_or(0) * statistics.pageSize;
    if (info.swapTotal && info.swapFree)
        statistics.swapUsed = floorDifference(*info.swapTotal, *info.swapFree) * statistics.pageSize;
    statistics.pressureLevel = pressureLevel(info, stall.value_or(PressureStall{}));
    return statistics;
}

LinuxMemorySource::LinuxMemorySource(const std::string& proc, const std::string& sys)
    : memory_(proc + "/meminfo"), pressure_(proc + "/pressure/memory"), zram_(sys) {}

std::optional<MemorySampler::Statistics> LinuxMemorySource::read() {
    const auto text = memory_.read();
    const auto info = text ? parseMemInfo(*text) : std::nullopt;
    if (!info)
        return std::nullopt;
    findZramAfterSwapChange(*info);
    const auto pressure = pressure_.read();
    return memoryStatistics(*info, pressure ? parsePressure(*pressure) : std::nullopt, zram_.memoryUsed());
}

void LinuxMemorySource::findZramAfterSwapChange(const MemInfo& info) {
    const auto swapTotal = info.swapTotal.value_or(0);
    if (swapTotal_ == swapTotal)
        return;
    swapTotal_ = swapTotal;
    zram_.find();
}

} // namespace vantrix
