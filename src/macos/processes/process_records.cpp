#include "macos/processes/process_records.h"

#include <algorithm>
#include <cstring>
#include <string>

#include <libproc.h>
#include <sys/sysctl.h>

#include "macos/kernel/mach_clock.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

constexpr std::size_t mostStale = 256; // names that are kept although nothing goes by them any more
constexpr std::size_t roomForNew = 64; // processes that begin while they are listed

std::uint64_t nanoseconds(std::uint64_t machTime) {
    return static_cast<std::uint64_t>(secondsOfMachTime(machTime) * 1e9);
}

std::string plainName(std::string_view name) {
    std::string plain = withoutTerminalControls(name);
    std::replace(plain.begin(), plain.end(), '\n', ' ');
    return plain.empty() ? "?" : plain;
}

/// The outermost bundle on the way to a program; empty without one.
std::string bundleAround(const std::string& path) {
    constexpr std::string_view ending = ".app";
    const auto end = path.find(std::string(ending) + '/');
    return end == std::string::npos ? std::string() : path.substr(0, end + ending.size());
}

ProcessSampler::Application identify(int id) {
    char path[PROC_PIDPATHINFO_MAXSIZE] = {};
    if (proc_pidpath(id, path, sizeof path) > 0) {
        const std::string bundle = bundleAround(path);
        const std::string program = bundle.empty() ? std::string(path) : bundle;
        const std::string name = program.substr(program.rfind('/') + 1);
        return {plainName(name.substr(0, bundle.empty() ? name.size() : name.rfind('.'))), bundle};
    }
    proc_bsdinfo record{};
    const int size = proc_pidinfo(id, PROC_PIDTBSDINFO, 0, &record, sizeof record);
    if (size != static_cast<int>(sizeof record))
        return {plainName({}), {}};
    return {plainName({record.pbi_name, strnlen(record.pbi_name, sizeof record.pbi_name)}), {}};
}

} // namespace

bool ProcessRecords::list() {
    const int count = proc_listallpids(nullptr, 0);
    if (count <= 0)
        return false;
    ids_.resize(static_cast<std::size_t>(count) + roomForNew);
    const int listed = proc_listallpids(ids_.data(), static_cast<int>(ids_.size() * sizeof(int)));
    ids_.resize(static_cast<std::size_t>(std::clamp(listed, 0, static_cast<int>(ids_.size()))));
    std::sort(ids_.begin(), ids_.end());
    return listed > 0;
}

bool ProcessRecords::read(std::vector<ProcessSampler::Process>& processes) {
    if (applications_.size() > 2 * known_.size() + mostStale)
        forget();
    if (!list())
        return false;
    processes.clear();
    auto known = known_.begin();
    for (const int id : ids_) {
        rusage_info_v2 usage{};
        if (proc_pid_rusage(id, RUSAGE_INFO_V2, reinterpret_cast<rusage_info_t*>(&usage)) != 0)
            continue; // another user's, or it has just ended
        ProcessSampler::Process process{id, usage.ri_proc_start_abstime,
                                        nanoseconds(usage.ri_user_time) + nanoseconds(usage.ri_system_time),
                                        usage.ri_phys_footprint, 0};
        known = std::find_if(known, known_.end(), [id](const auto& one) { return one.id >= id; });
        const bool isKnown = known != known_.end() && known->id == id && known->start == process.start;
        process.application = isKnown ? known->application : applicationOf(process);
        processes.push_back(process);
    }
    known_ = processes;
    return !processes.empty();
}

std::uint32_t ProcessRecords::applicationOf(const ProcessSampler::Process& process) {
    auto application = identify(process.id);
    const auto found = std::find_if(applications_.begin(), applications_.end(), [&](const auto& one) {
        return one.name == application.name && one.icon == application.icon;
    });
    const auto place = static_cast<std::uint32_t>(found - applications_.begin());
    if (found == applications_.end())
        applications_.push_back(std::move(application));
    return place;
}

int ProcessRecords::processors() const {
    std::int32_t count = 0;
    std::size_t size = sizeof count;
    const bool isRead = sysctlbyname("hw.activecpu", &count, &size, nullptr, 0) == 0 && size == sizeof count;
    return isRead ? std::max(static_cast<int>(count), 1) : 1;
}

void ProcessRecords::forget() {
    known_ = std::vector<ProcessSampler::Process>();
    applications_ = std::vector<ProcessSampler::Application>();
}

} // namespace vantrix
