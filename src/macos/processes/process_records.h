#pragma once

#include <vector>

#include "samplers/process_sampler.h"

namespace vantrix {

/// proc_listallpids, and of each process proc_pid_rusage, which answers for this user's own; the others are left out.
/// What application a process belongs to is looked up when it is new: that of the bundle that its program lies in,
/// whichever bundles are inside that one, else the program by its own name (proc_pidpath, proc_pidinfo).
class ProcessRecords : public ProcessSampler::Source {
  public:
    bool read(std::vector<ProcessSampler::Process>& processes) override;
    const std::vector<ProcessSampler::Application>& applications() const override { return applications_; }
    int processors() const override;
    void forget() override;

  private:
    bool list();
    std::uint32_t applicationOf(const ProcessSampler::Process& process);

    std::vector<int> ids_;
    std::vector<ProcessSampler::Process> known_;
    std::vector<ProcessSampler::Application> applications_;
};

} // namespace vantrix
