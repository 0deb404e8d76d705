#pragma once

#include <memory>

#include "sensors/io_report_sampler.h"

namespace vantrix {

/// The energy counters of libIOReport.dylib; null when the library, a function or the channels are missing.
std::unique_ptr<IOReportSampler::Source> makeEnergyChannels();

} // namespace vantrix
