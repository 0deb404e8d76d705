#include "linux/memory/linux_memory_source.h"

#include <algorithm>

namespace vantrix {
namespace {

std::uint64_t floorDifference(std::uint64_t a, std::uint64_t b) {
    return a > b ? a - b : 0;
}

std::uint64_t sharedMemory(const MemInfo& info) {
    return info.shmem.value_or(0);
}

/// Anonymous and shared memory. What was read ahead from swap is on the lists of such memory, but counted only once a
/// program touches it.
std::uint64_t internalMemory(const MemInfo& info) {
    const auto counted = info.anonPages.value_or(0) + sharedMemory(info);
    const auto listed = info.activeAnon.value_or(0) + info.inactiveAnon.value_or(0);
    return counted + std::min(info.swapCached.value_or(0), floorDifference(listed, counted));
}

/// Contents of files and disks. Shared memory is counted with them, but cannot be dropped.
std::uint64_t fileCache(const MemInfo& info) {
    return info.buffers.value_or(0) + floorDifference(info.cached.value_or(0), sharedMemory(info));
}

/// Part of the file cache that cannot be dropped, because it is locked or has nowhere else to be. It is on the list of
/// what cannot be evicted, together with locked anonymous memory, and on no list of files.
std::uint64_t lockedFiles(const MemInfo& info) {
    const auto listed = info.activeFile.value_or(0) + info.inactiveFile.value_or(0);
    return std::min(info.unevictable.value_or(0), floorDifference(fileCache(info), listed));
}

std::uint64_t reclaimableKernelMemory(const MemInfo& info) {
    return info.kReclaimable.value_or(info.sReclaimable.value_or(0));
}

/// Free memory, and what is dropped to make room.
std::uint64_t droppableMemory(const MemInfo& info) {
    return info.memFree.value_or(0) + fileCache(info) + reclaimableKernelMemory(info);
}

bool isSwapShort(const MemInfo& info) {
    const auto total = info.swapTotal.value_or(0);
    return total == 0 || info.swapFree.value_or(0) * 10 < total;
}

/// 1 normal, 2 warning, 4 critical. Stalls count only where memory is short as well: a group of processes that runs
/// into its own limit stalls on a machine with plenty. Where the kernel measures them, memory that is nearly used up
/// is critical only if something has to wait for it, or will soon because swap is used up too.
std::int64_t pressureLevel(const MemInfo& info, std::uint64_t available, const std::optional<PressureStall>& stall) {
    constexpr double longStall = 20.0;
    const auto isBelow = [&](std::uint64_t percent) { return available * 100 < info.memTotal.value_or(0) * percent; };
    const bool someStall = stall && stall->some >= longStall && isBelow(25);
    const bool allStall = stall && stall->full >= longStall && isBelow(25);
    if (allStall || (isBelow(5) && (!stall || someStall || isSwapShort(info))))
        return 4;
    return someStall || isBelow(12) ? 2 : 1;
}

} // namespace

MemorySampler::Statistics memoryStatistics(const MemInfo& info, const std::optional<PressureStall>& stall,
                                           const UntoldMemory& untold) {
    MemorySampler::Statistics statistics;
    statistics.pageSize = 1024;
    const auto total = info.memTotal.value_or(0);
    // In a container the counters may be partly its own and partly the machine's: no part is more than the whole.
    auto rest = floorDifference(total, droppableMemory(info));
    const auto take = [&rest](std::uint64_t part) {
        const auto taken = std::min(part, rest);
        rest -= taken;
        return taken;
    };
    statistics.internalPageCount = take(internalMemory(info));
    statistics.compressorPageCount = take(info.zswap.value_or(0) + untold.zram / statistics.pageSize);
    const auto zfsCache = take(untold.zfsCache / statistics.pageSize);
    statistics.wireCount = rest + lockedFiles(info);
    statistics.physicalMemory = total * statistics.pageSize;
    if (info.swapTotal && info.swapFree)
        statistics.swapUsed = floorDifference(*info.swapTotal, *info.swapFree) * statistics.pageSize;
    const auto available = info.memAvailable.value_or(droppableMemory(info));
    statistics.pressureLevel = pressureLevel(info, available + zfsCache, stall);
    return statistics;
}

LinuxMemorySource::LinuxMemorySource(const std::string& proc, const std::string& sys)
    : memory_(proc + "/meminfo"), pressure_(proc + "/pressure/memory"), zram_(sys), zfsCache_(proc) {}

std::optional<MemorySampler::Statistics> LinuxMemorySource::read() {
    const auto text = memory_.read();
    const auto info = text ? parseMemInfo(*text) : std::nullopt;
    if (!info)
        return std::nullopt;
    findZramAfterSwapChange(*info);
    const auto pressure = pressure_.read();
    return memoryStatistics(*info, pressure ? parsePressure(*pressure) : std::nullopt,
                            {zram_.memoryUsed(), zfsCache_.reclaimable()});
}

void LinuxMemorySource::findZramAfterSwapChange(const MemInfo& info) {
    const auto swapTotal = info.swapTotal.value_or(0);
    if (swapTotal_ == swapTotal)
        return;
    swapTotal_ = swapTotal;
    zram_.find();
}

} // namespace vantrix
