#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <dirent.h>

#include "linux/kernel/kernel_file.h"
#include "linux/processes/application_entries.h"
#include "linux/processes/proc_pid_stat.h"
#include "samplers/process_sampler.h"

namespace vantrix {

/// All processes that /proc shows this user, one read of /proc/PID/stat each. What application a process belongs to is
/// looked up when it is new, and once more if it has just begun, since a desktop moves what it starts into a group of
/// its own a moment after the start:
/// - the application of that control group;
/// - else the ancestor that a log-in or a terminal runs, and all that this one started;
/// - else the program by its own name.
class ProcessList : public ProcessSampler::Source {
  public:
    ProcessList(std::string proc, const std::string& sys, ApplicationEntries entries);

    bool read(std::vector<ProcessSampler::Process>& processes) override;
    const std::vector<ProcessSampler::Application>& applications() const override { return applications_; }
    int processors() const override { return processors_; }
    void forget() override;

  private:
    using Name = std::array<char, 16>;

    struct Known {
        std::int32_t id = 0;
        std::int32_t parent = 0;
        std::uint64_t start = 0;
        Name name{};
        bool leadsSession = false;
        bool hasTerminal = false;
        bool isKernelThread = false;
        int looks = 0; // at which application it belongs to, at most 2
        std::uint32_t application = 0;
        std::int32_t group = -1; // its place in `groups_`
        std::uint64_t ticks = 0;
        std::uint64_t resident = 0; // bytes
    };

    /// A control group that holds one application.
    struct Group {
        explicit Group(const std::string& folder) : memory(folder + "/memory.current") {}
        KernelFile memory;          // what is charged to it, cached files included
        std::uint64_t resident = 0; // the sum over its processes, shared pages counted for each
        std::optional<std::uint64_t> current;
    };

    struct CloseFolder {
        void operator()(DIR* stream) const { closedir(stream); }
    };

    bool list();
    void add(const char* entry);
    void identify();
    void takeOver(Known& process, const Known& before);
    void lookUp(Known& process);
    std::uint32_t applicationOf(Known& process);
    const Known* find(std::int32_t id) const;
    bool isSession(const Known& process) const;
    bool isManager(const Known& process) const;
    const Known& startedBySession(const Known& process, bool hasLogin) const;
    std::uint32_t named(const std::vector<std::string>& names);
    std::string programName(const Known& process) const;
    std::string readOf(const Known& process, const char* file) const;
    std::int32_t groupAt(std::string_view path);
    void countProcessors();
    void shareMemory();

    std::string proc_;
    std::string groupTree_;
    KernelFile online_;
    ApplicationEntries entries_;
    std::unique_ptr<DIR, CloseFolder> folder_;
    std::vector<Known> known_;
    std::vector<Known> before_;
    std::vector<ProcessSampler::Application> applications_;
    std::optional<std::uint32_t> kernel_;                      // its place among the applications
    std::map<std::string, std::uint32_t, std::less<>> places_; // of applications, by name of entry or program
    std::vector<std::unique_ptr<Group>> groups_;
    std::map<std::string, std::int32_t, std::less<>> groupPlaces_;
    int processors_ = 1;
};

} // namespace vantrix
