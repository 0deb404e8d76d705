#pragma once

#include <cstdint>

extern "C" {

#define PROC_PIDTBSDINFO 3
#define PROC_PIDTASKINFO 4
#define PROC_PIDPATHINFO_MAXSIZE 4096

struct proc_bsdinfo {
    std::uint32_t pbi_flags, pbi_status, pbi_xstatus, pbi_pid, pbi_ppid, pbi_uid, pbi_gid, pbi_ruid, pbi_rgid,
        pbi_svuid, pbi_svgid, rfu_1;
    char pbi_comm[16];
    char pbi_name[32];
    std::uint32_t pbi_nfiles, pbi_pgid, pbi_pjobc, e_tdev, e_tpgid;
    std::int32_t pbi_nice;
    std::uint64_t pbi_start_tvsec, pbi_start_tvusec;
};

struct proc_taskinfo {
    std::uint64_t pti_virtual_size, pti_resident_size, pti_total_user, pti_total_system, pti_threads_user,
        pti_threads_system;
    std::int32_t pti_policy, pti_faults, pti_pageins, pti_cow_faults, pti_messages_sent, pti_messages_received,
        pti_syscalls_mach, pti_syscalls_unix, pti_csw, pti_threadnum, pti_numrunning, pti_priority;
};

#define RUSAGE_INFO_V2 2
typedef void* rusage_info_t;

struct rusage_info_v2 {
    std::uint8_t ri_uuid[16];
    std::uint64_t ri_user_time, ri_system_time, ri_pkg_idle_wkups, ri_interrupt_wkups, ri_pageins, ri_wired_size,
        ri_resident_size, ri_phys_footprint, ri_proc_start_abstime, ri_proc_exit_abstime, ri_child_user_time,
        ri_child_system_time, ri_child_pkg_idle_wkups, ri_child_interrupt_wkups, ri_child_pageins,
        ri_child_elapsed_abstime, ri_diskio_bytesread, ri_diskio_byteswritten;
};

int proc_listallpids(void* buffer, int bufferSize);
int proc_pidpath(int pid, void* buffer, std::uint32_t bufferSize);
int proc_pidinfo(int pid, int flavor, std::uint64_t arg, void* buffer, int bufferSize);
int proc_pid_rusage(int pid, int flavor, rusage_info_t* buffer);

} // extern "C"
