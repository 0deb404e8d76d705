#pragma once

#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"
#include "samplers/cpu_sampler.h"

namespace vantrix {

/// One "cpuN" line of /proc/stat: cumulative time in clock ticks (1/100 s).
struct CoreTicks {
    std::uint64_t core = 0; ///< N; offline cores have no line
    std::uint64_t user = 0;
    std::uint64_t nice = 0;
    std::uint64_t system = 0; ///< with interrupts and the time that a hypervisor took away
    std::uint64_t idle = 0;   ///< with the time spent waiting for input and output
};

/// Replaces `cores` by the lines of /proc/stat. False when there are none or one makes no sense; `cores` is then
/// unspecified.
bool parseProcStat(std::string_view text, std::vector<CoreTicks>& cores);

/// A counter that never goes down. The kernel computes idle times anew for each reader, so they step back by a few
/// ticks now and then; they also start over when a core was taken offline in between.
class SteadyCounter {
  public:
    std::uint32_t advance(std::uint64_t raw);
    /// Goes on from the last value with the counter of something else.
    void restart(std::uint64_t raw);

  private:
    std::uint64_t last_ = 0;
    std::uint64_t offset_ = 0;
};

/// Ticks of the online cores from /proc/stat.
class ProcStatSource : public CPUSampler::Source {
  public:
    explicit ProcStatSource(const std::string& proc) : file_(proc + "/stat") {}

    bool read(std::vector<CPUSampler::Ticks>& cores) override;

  private:
    struct Core {
        std::uint64_t number = 0;
        SteadyCounter user;
        SteadyCounter system;
        SteadyCounter idle;
        SteadyCounter nice;

        void restart(const CoreTicks& ticks);
        CPUSampler::Ticks advance(const CoreTicks& ticks);
    };

    KernelFile file_;
    std::vector<CoreTicks> lines_;
    std::vector<Core> cores_;
};

} // namespace vantrix
