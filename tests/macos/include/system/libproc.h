#pragma once

#include <cstdint>

extern "C" {

#define PROC_PIDTASKINFO 4

struct proc_taskinfo {
    std::uint64_t pti_virtual_size;
    std::uint64_t pti_resident_size;
    std::uint64_t pti_total_user;
    std::uint64_t pti_total_system;
    std::uint64_t pti_threads_user;
    std::uint64_t pti_threads_system;
    std::int32_t pti_policy;
    std::int32_t pti_faults;
    std::int32_t pti_pageins;
    std::int32_t pti_cow_faults;
    std::int32_t pti_messages_sent;
    std::int32_t pti_messages_received;
    std::int32_t pti_syscalls_mach;
    std::int32_t pti_syscalls_unix;
    std::int32_t pti_csw;
    std::int32_t pti_threadnum;
    std::int32_t pti_numrunning;
    std::int32_t pti_priority;
};

#define RUSAGE_INFO_V2 2
typedef void* rusage_info_t;

struct rusage_info_v2 {
    std::uint8_t ri_uuid[16];
    std::uint64_t ri_user_time;
    std::uint64_t ri_system_time;
    std::uint64_t ri_pkg_idle_wkups;
    std::uint64_t ri_interrupt_wkups;
    std::uint64_t ri_pageins;
    std::uint64_t ri_wired_size;
    std::uint64_t ri_resident_size;
    std::uint64_t ri_phys_footprint;
    std::uint64_t ri_proc_start_abstime;
    std::uint64_t ri_proc_exit_abstime;
    std::uint64_t ri_child_user_time;
    std::uint64_t ri_child_system_time;
    std::uint64_t ri_child_pkg_idle_wkups;
    std::uint64_t ri_child_interrupt_wkups;
    std::uint64_t ri_child_pageins;
    std::uint64_t ri_child_elapsed_abstime;
    std::uint64_t ri_diskio_bytesread;
    std::uint64_t ri_diskio_byteswritten;
};

int proc_pidinfo(int pid, int flavor, std::uint64_t arg, void* buffer, int bufferSize);
int proc_pid_rusage(int pid, int flavor, rusage_info_t* buffer);

} // extern "C"
