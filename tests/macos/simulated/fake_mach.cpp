#include <algorithm>
#include <cerrno>
#include <cstring>

#include <libproc.h>
#include <mach/mach_time.h>
#include <pthread/qos.h>
#include <sys/sysctl.h>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;

mach_port_t mach_task_self_ = 7;

namespace {

constexpr mach_port_t hostPort = 8;

} // namespace

mach_port_t mach_host_self() {
    ++mac().hostReferences;
    return hostPort;
}

kern_return_t mach_port_deallocate(task_port_t task, mach_port_t name) {
    if (task != mach_task_self_ || name != hostPort || --mac().hostReferences < 0)
        vantrix::fatalError("mach_port_deallocate of a port that is not held");
    return KERN_SUCCESS;
}

kern_return_t vm_deallocate(vm_map_t task, vm_address_t address, vm_size_t size) {
    const auto found = mac().arrays.find(reinterpret_cast<const void*>(address));
    if (task != mach_task_self_ || found == mac().arrays.end() || found->second.size() * sizeof(integer_t) != size)
        vantrix::fatalError("vm_deallocate of another array or size than was given");
    mac().arrays.erase(found);
    return KERN_SUCCESS;
}

kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* infoCount) {
    if (host != hostPort || flavor != PROCESSOR_CPU_LOAD_INFO || !mac().ticks)
        return KERN_FAILURE;
    const Outcome outcome = outcomeOf();
    if (outcome != Outcome::works)
        return outcome == Outcome::fails ? KERN_FAILURE : KERN_SUCCESS; // success without an array
    const auto& ticks = *mac().ticks;
    *processorCount = static_cast<natural_t>(ticks.size());
    std::vector<integer_t> array;
    for (const auto& core : ticks)
        array.insert(array.end(), core.begin(), core.end());
    *infoCount = static_cast<mach_msg_type_number_t>(array.size());
    *info = array.data();
    mac().arrays[*info] = std::move(array);
    return KERN_SUCCESS;
}

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t* infoCount) {
    // Like newer systems, this one tells more than the headers of older ones have.
    constexpr mach_msg_type_number_t whole = sizeof(vm_statistics64) / sizeof(integer_t) + 8;
    if (host != hostPort || flavor != HOST_VM_INFO64 || *infoCount < whole || !mac().pages || fails())
        return KERN_FAILURE;
    std::fill_n(info, whole, -1);
    std::memcpy(info, &*mac().pages, sizeof(vm_statistics64));
    *infoCount = whole;
    return KERN_SUCCESS;
}

kern_return_t mach_timebase_info(struct mach_timebase_info* info) {
    *info = {125, 3};
    return KERN_SUCCESS;
}

std::uint64_t mach_absolute_time() {
    return mac().machTime;
}

int sysctlbyname(const char* name, void* old, std::size_t* oldSize, void*, std::size_t) {
    const auto found = mac().systemValues.find(name);
    if (found == mac().systemValues.end() || fails()) {
        errno = ENOENT;
        return -1;
    }
    const std::string& value = found->second;
    const std::size_t room = old ? *oldSize : value.size();
    if (old)
        std::memcpy(old, value.data(), std::min(room, value.size()));
    *oldSize = std::min(room, value.size());
    errno = ENOMEM;
    return room < value.size() ? -1 : 0;
}

int proc_listallpids(void* buffer, int size) {
    if (fails())
        return -1;
    int count = 0;
    for (const auto& process : mac().processes) {
        if (buffer != nullptr && (count + 1) * static_cast<int>(sizeof(int)) > size)
            break;
        if (buffer != nullptr)
            std::memcpy(static_cast<char*>(buffer) + static_cast<std::size_t>(count) * sizeof(int), &process.id,
                        sizeof(int));
        ++count;
    }
    return count;
}

static auto processOf(int pid) {
    const auto& processes = mac().processes;
    return std::find_if(processes.begin(), processes.end(), [pid](const auto& entry) { return entry.id == pid; });
}

int proc_pidpath(int pid, void* buffer, std::uint32_t size) {
    const auto found = processOf(pid);
    if (found == mac().processes.end() || found->path.empty() || found->path.size() >= size || fails())
        return 0;
    std::memcpy(buffer, found->path.data(), found->path.size());
    return static_cast<int>(found->path.size());
}

int proc_pidinfo(int pid, int flavor, std::uint64_t, void* buffer, int size) {
    if (flavor == PROC_PIDTBSDINFO && size == sizeof(proc_bsdinfo) && !fails()) {
        proc_bsdinfo record{};
        std::memcpy(record.pbi_name, "odd\nname", 8);
        std::memcpy(buffer, &record, sizeof record);
        return sizeof record;
    }
    if (pid != 42 || flavor != PROC_PIDTASKINFO || size != sizeof(proc_taskinfo) || fails())
        return 0;
    proc_taskinfo task{};
    task.pti_resident_size = 50'000;
    task.pti_threadnum = 6;
    task.pti_total_user = 48'000'000;
    task.pti_total_system = 24'000'000;
    std::memcpy(buffer, &task, sizeof task);
    return sizeof task;
}

int proc_pid_rusage(int pid, int flavor, rusage_info_t* buffer) {
    const auto found = processOf(pid);
    if (found != mac().processes.end() && found->isOwn && !fails()) {
        rusage_info_v2 usage{};
        usage.ri_user_time = found->userTime;
        usage.ri_phys_footprint = found->footprint;
        usage.ri_proc_start_abstime = found->start;
        std::memcpy(buffer, &usage, sizeof usage);
        return 0;
    }
    if (pid != 42 || flavor != RUSAGE_INFO_V2 || fails())
        return -1;
    rusage_info_v2 usage{};
    usage.ri_interrupt_wkups = 12;
    usage.ri_phys_footprint = 20'000;
    usage.ri_proc_start_abstime = 240'000'000;
    std::memcpy(buffer, &usage, sizeof usage);
    return 0;
}

int pthread_set_qos_class_self_np(qos_class_t, int) {
    return 0;
}
