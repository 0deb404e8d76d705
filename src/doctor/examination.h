#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <vector>

#include "doctor/probes.h"
#include "doctor/report.h"

namespace vantrix {

/// By names of `reading_name`.
using Findings = std::map<std::string_view, Finding>;

/// Two passes through the real samplers, as the running program makes them. Each reads on a thread of its own, so that
/// a driver that hangs costs no more than the patience, and what the same read would have given.
class Examination {
  public:
    Examination(SamplingSources sources, std::chrono::milliseconds patience);

    /// Sets what loads and rates are measured from.
    void beginPass();
    /// Some time after it: a finding for every reading, and the median cost of a few reads.
    Findings finish();

    /// True when a read still goes on: the program must not end in good order then, below its feet.
    bool leftThreadBehind() const;

  private:
    std::vector<Finding> measure(std::size_t probe);

    std::shared_ptr<Samplers> samplers_; // shared with reads that hang
    std::chrono::milliseconds patience_;
    std::vector<bool> hangs_; // by probe
};

/// The rows of the readings: each diagnosis with what was found. The first row of a reading that can have a value has
/// it; a source that should give one and does not is called silent.
std::vector<DoctorRow> joined(const std::vector<SourceDiagnosis>& diagnoses, const Findings& findings);

} // namespace vantrix
