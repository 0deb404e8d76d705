#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/disks/proc_diskstats.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/reading_manner.h"
#include "linux/memory/proc_meminfo.h"
#include "linux/memory/proc_pressure.h"
#include "linux/memory/zfs_cache.h"

namespace vantrix {
namespace {

constexpr std::string_view noProc = "Without this file there is no such reading: is /proc mounted?";

SourceDiagnosis memory(const DiagnosisTools& tools) {
    auto row = diagnosisOfFile(tools, reading_name::memory, tools.roots.proc + "/meminfo", noProc);
    if (row.state != SourceState::ok || !parseMemInfo(readStart(row.source).value_or("")))
        return row;
    row.reason = "In use: all but free memory, buffers, cached files and what the kernel can give back. App: anonymous "
                 "and shared memory. Compressed: zram and zswap. Wired: the rest, such as the kernel's and graphics "
                 "memory, and locked files.";
    if (!entriesStartingWith(tools.roots.sys + "/block", "zram").empty())
        row.source += ", zram";
    const std::string zfs = ZFSCache::pathOf(tools.roots.proc);
    if (tools.reach(zfs) == Reach::readable) {
        row.source += ", " + zfs;
        row.reason += " ZFS's cache counts as available, all but the least that it keeps.";
    }
    return row;
}

SourceDiagnosis pressure(const DiagnosisTools& tools) {
    auto row = diagnosisOfFile(tools, reading_name::pressure, tools.roots.proc + "/pressure/memory",
                               "This kernel does not measure stalls (PSI). The level follows available memory alone.");
    if (row.state != SourceState::ok)
        return row;
    // Switched off at start, the file is still there and readable, but cannot be opened.
    if (!parsePressure(readStart(row.source).value_or(""))) {
        row.state = SourceState::absent;
        row.reason = "Measuring stalls (PSI) is switched off; the kernel parameter psi=1 turns it on. The level "
                     "follows available memory alone.";
        return row;
    }
    row.reason = "Warning: under 12% of memory is available, or under 25% while programs stall for it. Critical: all "
                 "of them stall, or under 5% is available while some stall or swap is short as well.";
    return row;
}

/// A tree that hides others' processes denies or lacks the first one's.
SourceDiagnosis programs(const DiagnosisTools& tools) {
    SourceDiagnosis row{std::string(reading_name::programs), tools.roots.proc + "/PID/stat"};
    row.reason = "Read while a list of programs is on screen and for an alert, and not otherwise. There is none by "
                 "network or disk: what the kernel counts of those for each process is for root alone.";
    std::vector<std::string> entries;
    if (readingManner.watch == nullptr) // what runs is not for a capture
        entries = entriesStartingWith(tools.roots.proc, "");
    const auto isProcess = [](const std::string& entry) { return entry.front() >= '1' && entry.front() <= '9'; };
    if (std::none_of(entries.begin(), entries.end(), isProcess)) {
        row.state = SourceState::absent;
        row.reason = "No processes are listed there: is it the kernel's tree?";
    } else if (tools.reach(tools.roots.proc + "/1/stat") != Reach::readable) {
        row.reason += " Only this user's own are listed: the tree is mounted with hidepid.";
    }
    return row;
}

SourceDiagnosis diskSpace(const DiagnosisTools& tools) {
    const auto folders = volumeFolders(tools.roots.proc);
    const auto chosen = writtenFolder(folders, tools.volume);
    SourceDiagnosis row{std::string(reading_name::diskSpace), "statvfs of " + folders[chosen]};
    if (chosen > 0)
        row.reason = "The file system at / is read-only, so its figures do not tell what room is left. These are of "
                     "the first of /var and the home folder that can be written to.";
    return row;
}

bool hasPhysicalDisk(const KernelRoots& roots) {
    std::vector<DiskSampler::Counters> disks;
    return DiskStatsSource(roots.proc, roots.sys).read(disks) && !disks.empty();
}

} // namespace

void diagnoseCounters(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    rows.push_back(diagnosisOfFile(tools, reading_name::processor, tools.roots.proc + "/stat", noProc));
    rows.push_back(memory(tools));
    rows.push_back(pressure(tools));
    rows.push_back(programs(tools));
}

void diagnoseDisks(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    rows.push_back(diskSpace(tools));
    auto rates = diagnosisOfFile(tools, reading_name::diskRates, tools.roots.proc + "/diskstats",
                                 "The kernel was built without statistics of block devices.");
    if (rates.state == SourceState::ok && !hasPhysicalDisk(tools.roots)) {
        rates.state = SourceState::absent;
        rates.reason = "No disk of this machine's own is in the list: only partitions, or disks made of other disks, "
                       "files or memory, which are not counted twice.";
    }
    rows.push_back(std::move(rates));
}

} // namespace vantrix
