#pragma once

#include "linux/capture/answered_sources.h"
#include "linux/sampling_parts.h"

namespace vantrix {

/// The parts of a capture's or replay's sources. In a capture they ask this machine: `redaction` is then not null, and
/// outlives them.
SamplingParts makeAnsweredParts(const KernelRoots& roots, const std::shared_ptr<Answers>& answers,
                                const PassClock& clock, Redaction* redaction);

} // namespace vantrix
