// The records that the kernel fills, where the program reads them. The same file is compiled against the system's own
// headers, where there are some, and so keeps those of the tests honest.

#include <cstddef>

#include <ifaddrs.h>
#include <libproc.h>
#include <mach/mach.h>
#include <net/if.h>
#include <netdb.h>
#include <sys/socket.h>
#include <sys/sysctl.h>

static_assert(PROCESSOR_CPU_LOAD_INFO == 2 && CPU_STATE_MAX == 4);
static_assert(CPU_STATE_USER == 0 && CPU_STATE_SYSTEM == 1 && CPU_STATE_IDLE == 2 && CPU_STATE_NICE == 3);
static_assert(HOST_VM_INFO64 == 4 && KERN_SUCCESS == 0 && sizeof(integer_t) == 4);
static_assert(offsetof(vm_statistics64, wire_count) == 12 && offsetof(vm_statistics64, purgeable_count) == 88);
static_assert(offsetof(vm_statistics64, compressor_page_count) == 128);
static_assert(offsetof(vm_statistics64, internal_page_count) == 140 && sizeof(vm_statistics64) >= 152);
static_assert(sizeof(xsw_usage) == 32 && offsetof(xsw_usage, xsu_used) == 16);
static_assert(AF_LINK == 18 && AF_INET == 2 && AF_INET6 == 30 && IFF_UP == 0x1 && IFF_RUNNING == 0x40);
static_assert(offsetof(sockaddr, sa_len) == 0 && offsetof(sockaddr, sa_family) == 1 && sizeof(sockaddr) == 16);
static_assert(offsetof(if_data, ifi_ibytes) == 40 && offsetof(if_data, ifi_obytes) == 44);
static_assert(offsetof(ifaddrs, ifa_addr) == 24 && offsetof(ifaddrs, ifa_data) == 48);
static_assert(NI_NUMERICHOST == 2 && NI_MAXHOST == 1025);
static_assert(PROC_PIDTASKINFO == 4 && sizeof(proc_taskinfo) == 96 && offsetof(proc_taskinfo, pti_threadnum) == 84);
static_assert(PROC_PIDTBSDINFO == 3 && sizeof(proc_bsdinfo) == 136 && offsetof(proc_bsdinfo, pbi_name) == 64);
static_assert(PROC_PIDPATHINFO_MAXSIZE == 4096 && offsetof(rusage_info_v2, ri_user_time) == 16);
static_assert(RUSAGE_INFO_V2 == 2 && offsetof(rusage_info_v2, ri_interrupt_wkups) == 40);
static_assert(offsetof(rusage_info_v2, ri_phys_footprint) == 72);
static_assert(offsetof(rusage_info_v2, ri_proc_start_abstime) == 80 && sizeof(rusage_info_v2) == 160);
