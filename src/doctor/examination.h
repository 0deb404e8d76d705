#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "doctor/probes.h"
#include "doctor/report.h"

namespace vantrix {

/// By names of `reading_name`.
using Findings = std::map<std::string_view, Finding>;

/// Two passes through the real samplers, as the running program makes them. Each read has a thread of its own, so a
/// driver that hangs costs no more than the patience and the values of that read.
class Examination {
  public:
    Examination(SamplingSources sources, std::chrono::milliseconds patience);

    /// Examines one port and one volume alone: see `Samplers::choose`.
    void choose(const std::string& port, const std::string& mountPoint) { samplers_->choose(port, mountPoint); }

    /// Takes the baseline of loads and rates.
    void beginPass();
    /// To be called some time later: a finding for every reading, with the median cost of a few reads.
    Findings finish();

    /// True while a read hangs: the program must then end without taking down what that thread uses.
    bool leftThreadBehind() const;

  private:
    std::vector<Finding> measure(std::size_t probe);

    std::shared_ptr<Samplers> samplers_; // shared with reads that hang
    std::chrono::milliseconds patience_;
    std::vector<bool> hangs_; // by probe
};

/// Each diagnosis with what was found. Of several rows of one reading, the first that can have a value gets it; a
/// source that should give one but does not is called silent.
std::vector<DoctorRow> joined(const std::vector<SourceDiagnosis>& diagnoses, const Findings& findings);

} // namespace vantrix
