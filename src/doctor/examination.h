#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "doctor/report.h"
#include "platform/sampling_sources.h"

namespace vantrix {

/// What was measured of one reading.
struct Finding {
    std::string value;                  ///< empty when there is none now
    std::string note;                   ///< to be added to what its source is told to be
    std::optional<double> microseconds; ///< of one read; absent where another reading's read gives this one too
    bool isSilent = false;              ///< a read did not end in time
};

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
    struct Machine;
    struct Probe;
    struct Measured;

    static const std::vector<Probe>& probes();

    std::optional<Measured> measure(std::size_t probe);

    std::shared_ptr<Machine> machine_; // shared with reads that hang
    std::chrono::milliseconds patience_;
    std::vector<bool> hangs_; // by probe
};

/// The rows of the readings: each diagnosis with what was found. The first row of a reading that can have a value has
/// it; a source that should give one and does not is called silent.
std::vector<DoctorRow> joined(const std::vector<SourceDiagnosis>& diagnoses, const Findings& findings);

} // namespace vantrix
