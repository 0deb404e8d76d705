#include "linux/processes/process_list.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "linux/processes/application_unit.h"
#include "support/localization.h"

namespace vantrix {
namespace {

constexpr int enoughLooks = 2;
constexpr std::uint64_t unsettled = 10;   // seconds from a process's start in which its control group may change
constexpr std::size_t cutNameLength = 15; // of a name in /proc/PID/stat
constexpr std::size_t mostStale = 32;     // names that are kept although nothing goes by them any more
constexpr int mostAncestors = 64;

const std::uint64_t ticksPerSecond = static_cast<std::uint64_t>(sysconf(_SC_CLK_TCK));
const std::uint64_t nanosecondsPerTick = 1'000'000'000 / ticksPerSecond;
const std::uint64_t pageSize = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));

/// How many numbers a list such as "0-3,8\n" names; 0 when it makes no sense.
int countListed(std::string_view list) {
    int count = 0;
    while (!list.empty()) {
        const auto first = takeInteger<int>(list);
        int last = first.value_or(0);
        if (list.starts_with('-')) {
            list.remove_prefix(1);
            last = takeInteger<int>(list).value_or(-1);
        }
        if (!first || *first < 0 || last < *first || last >= 65536)
            return 0;
        count += last - *first + 1;
        if (!list.starts_with(','))
            break;
        list.remove_prefix(1);
    }
    return count;
}

} // namespace

ProcessList::ProcessList(std::string proc, const std::string& sys, ApplicationEntries entries)
    : proc_(std::move(proc)), groupTree_(sys + "/fs/cgroup"), online_(sys + "/devices/system/cpu/online"),
      entries_(std::move(entries)) {}

bool ProcessList::read(std::vector<ProcessSampler::Process>& processes) {
    if (applications_.size() + groups_.size() > 2 * known_.size() + mostStale)
        forget();
    std::swap(known_, before_);
    known_.clear();
    if (!list())
        return false;
    identify();
    countProcessors();
    shareMemory();
    processes.clear();
    for (const Known& process : known_)
        processes.push_back(
            {process.id, process.start, process.ticks * nanosecondsPerTick, process.resident, process.application});
    return true;
}

void ProcessList::forget() {
    known_ = std::vector<Known>();
    before_ = std::vector<Known>();
    applications_ = std::vector<ProcessSampler::Application>();
    kernel_.reset();
    places_.clear();
    groups_ = std::vector<std::unique_ptr<Group>>();
    groupPlaces_.clear();
    folder_.reset();
}

bool ProcessList::list() {
    if (folder_)
        rewinddir(folder_.get());
    else
        folder_.reset(opendir(proc_.c_str()));
    while (const dirent* entry = folder_ ? readdir(folder_.get()) : nullptr)
        if (entry->d_name[0] >= '1' && entry->d_name[0] <= '9')
            add(entry->d_name);
    const auto isBefore = [](const Known& a, const Known& b) { return a.id < b.id; };
    if (!std::is_sorted(known_.begin(), known_.end(), isBefore)) // as /proc lists them, but not every folder
        std::sort(known_.begin(), known_.end(), isBefore);
    if (known_.empty())
        folder_.reset(); // another tree may be mounted there later
    return !known_.empty();
}

void ProcessList::add(const char* entry) {
    const auto id = parseInteger<std::int32_t>(entry);
    if (!id)
        return;
    char path[32];
    char* const end = std::copy_n(entry, std::min<std::size_t>(std::strlen(entry), 16), path);
    std::copy_n("/stat", 6, end);
    const FileDescriptor file(::openat(dirfd(folder_.get()), path, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    char text[1024]; // with every number at its longest
    const ssize_t length = file ? ::read(file.get(), text, sizeof text) : -1;
    const auto stat = length > 0 ? parseProcessStat({text, static_cast<std::size_t>(length)}) : std::nullopt;
    if (!stat)
        return; // it has just ended, or may not be read
    Known process;
    process.id = *id;
    process.parent = stat->parent;
    process.start = stat->start;
    std::copy_n(stat->name.begin(), std::min(stat->name.size(), process.name.size()), process.name.begin());
    process.leadsSession = stat->session == *id;
    process.hasTerminal = stat->hasTerminal;
    process.isKernelThread = stat->isKernelThread;
    process.ticks = stat->ticks;
    process.resident = stat->resident * pageSize;
    known_.push_back(process);
}

/// All are listed by now, so that each finds its parent.
void ProcessList::identify() {
    auto before = before_.begin();
    std::uint64_t newest = 0;
    for (const Known& process : known_)
        newest = std::max(newest, process.start);
    for (Known& process : known_) {
        if (process.start + unsettled * ticksPerSecond < newest)
            process.looks = enoughLooks - 1;
        while (before != before_.end() && before->id < process.id)
            ++before;
        if (before != before_.end() && before->id == process.id)
            takeOver(process, *before);
        if (process.looks < enoughLooks)
            lookUp(process);
    }
}

void ProcessList::takeOver(Known& process, const Known& before) {
    const bool isSameProgram = process.isKernelThread || before.name == process.name;
    if (before.start != process.start || !isSameProgram)
        return;
    process.looks = before.looks;
    process.application = before.application;
    process.group = before.group;
}

void ProcessList::lookUp(Known& process) {
    ++process.looks;
    process.group = -1;
    process.application = applicationOf(process);
}

std::uint32_t ProcessList::applicationOf(Known& process) {
    if (process.isKernelThread) {
        process.looks = enoughLooks;
        if (!kernel_) {
            kernel_ = static_cast<std::uint32_t>(applications_.size());
            applications_.push_back({localized("Kernel"), {}});
        }
        return *kernel_;
    }
    const std::string text = readOf(process, "/cgroup");
    const std::string_view path = controlGroup(text);
    if (const std::string_view group = applicationGroup(path); !group.empty()) {
        process.group = groupAt(group);
        return named(entryNames(group));
    }
    return named({programName(startedBySession(process, isOfLogin(path)))});
}

const ProcessList::Known* ProcessList::find(std::int32_t id) const {
    const auto found = std::lower_bound(known_.begin(), known_.end(), id,
                                        [](const Known& process, std::int32_t wanted) { return process.id < wanted; });
    return found != known_.end() && found->id == id ? &*found : nullptr;
}

/// A shell in a terminal, or what a log-in started for somebody else than itself.
bool ProcessList::isSession(const Known& process) const {
    if (!process.leadsSession)
        return false;
    if (process.hasTerminal)
        return true;
    struct stat own {};
    struct stat parents {};
    const auto ask = [this](std::int32_t id, struct stat& status) {
        return ::fstatat(dirfd(folder_.get()), std::to_string(id).c_str(), &status, 0) == 0;
    };
    return process.parent > 1 && ask(process.id, own) && ask(process.parent, parents) && own.st_uid != parents.st_uid;
}

/// The first process, and a user's own manager of services, which is the same program.
bool ProcessList::isManager(const Known& process) const {
    const Known* first = find(1);
    return process.id == 1 || (first != nullptr && first->name == process.name);
}

/// The process itself where no log-in and no terminal runs it, as with the services of the system and of containers.
const ProcessList::Known& ProcessList::startedBySession(const Known& process, bool hasLogin) const {
    const Known* ancestor = &process;
    for (int steps = 0; steps < mostAncestors && !ancestor->leadsSession; ++steps) {
        const Known* parent = find(ancestor->parent);
        if (parent != nullptr && isSession(*parent))
            return *ancestor;
        if (parent == nullptr || isManager(*parent)) // what a session leaves behind belongs to that
            break;
        ancestor = parent;
    }
    return hasLogin ? *ancestor : process;
}

/// The application that goes by the first of `names` that is a desktop entry's; else by the last.
std::uint32_t ProcessList::named(const std::vector<std::string>& names) {
    if (const auto known = places_.find(names.front()); known != places_.end())
        return known->second;
    for (const std::string& name : names) {
        auto entry = entries_.find(name);
        if (!entry && &name != &names.back())
            continue;
        const auto [place, isNew] = places_.try_emplace(name, static_cast<std::uint32_t>(applications_.size()));
        const auto application = place->second;
        places_.try_emplace(names.front(), application);
        if (isNew)
            applications_.push_back(entry ? std::move(*entry) : ProcessSampler::Application{plainName(name), {}});
        return application;
    }
    return 0;
}

/// The kernel cuts names; the command line has them whole.
std::string ProcessList::programName(const Known& process) const {
    std::string name(process.name.data(), strnlen(process.name.data(), process.name.size()));
    if (name.size() < cutNameLength)
        return name;
    const std::string command = readOf(process, "/cmdline");
    std::string program = command.substr(0, command.find('\0'));
    program.erase(0, program.rfind('/') + 1);
    return program.starts_with(name) ? program : name;
}

std::string ProcessList::readOf(const Known& process, const char* file) const {
    return readStart(proc_ + '/' + std::to_string(process.id) + file).value_or("");
}

std::int32_t ProcessList::groupAt(std::string_view path) {
    if (const auto known = groupPlaces_.find(path); known != groupPlaces_.end())
        return known->second;
    const auto place = static_cast<std::int32_t>(groups_.size());
    groups_.push_back(std::make_unique<Group>(groupTree_ + std::string(path)));
    groupPlaces_.emplace(path, place);
    return place;
}

void ProcessList::countProcessors() {
    const auto text = online_.read();
    const int count = text ? countListed(*text) : 0;
    processors_ = count > 0 ? count : static_cast<int>(std::max(sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

/// Processes of one application share pages, which each has in its sum. What is charged to their group counts them
/// once, but cached files as well: the smaller of both is nearer the truth.
void ProcessList::shareMemory() {
    for (const auto& group : groups_) {
        group->resident = 0;
        group->current.reset();
    }
    for (const Known& process : known_)
        if (process.group >= 0)
            groups_[static_cast<std::size_t>(process.group)]->resident += process.resident;
    for (const auto& group : groups_) {
        const auto text = group->resident > 0 ? group->memory.read() : std::nullopt;
        group->current = text ? parseIntegerLine<std::uint64_t>(*text) : std::nullopt;
    }
    for (Known& process : known_) {
        if (process.group < 0)
            continue;
        const Group& group = *groups_[static_cast<std::size_t>(process.group)];
        if (group.current && *group.current < group.resident)
            process.resident =
                static_cast<std::uint64_t>(static_cast<double>(process.resident) / static_cast<double>(group.resident) *
                                           static_cast<double>(*group.current));
    }
}

} // namespace vantrix
