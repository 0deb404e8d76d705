#include <libproc.h>
#include <mach/mach_time.h>

#include "macos/kernel/mach_clock.h"
#include "platform/diagnosis.h"

namespace vantrix {

/// The uptime excludes sleep, as mach_absolute_time() does.
std::optional<ProcessStatistics> processStatistics(int pid, const std::string&) {
    proc_taskinfo task{};
    rusage_info_v2 usage{};
    if (proc_pidinfo(pid, PROC_PIDTASKINFO, 0, &task, sizeof task) != static_cast<int>(sizeof task) ||
        proc_pid_rusage(pid, RUSAGE_INFO_V2, reinterpret_cast<rusage_info_t*>(&usage)) != 0)
        return std::nullopt;
    ProcessStatistics statistics;
    const std::uint64_t now = mach_absolute_time();
    statistics.uptime = now > usage.ri_proc_start_abstime ? secondsOfMachTime(now - usage.ri_proc_start_abstime) : 0.0;
    statistics.userTime = secondsOfMachTime(task.pti_total_user);
    statistics.systemTime = secondsOfMachTime(task.pti_total_system);
    statistics.residentBytes = task.pti_resident_size;
    statistics.ownBytes = usage.ri_phys_footprint;
    // These include those that woke an idle processor.
    statistics.wakeUps = usage.ri_interrupt_wkups;
    statistics.threads = task.pti_threadnum;
    return statistics;
}

} // namespace vantrix
