#pragma once

#include <mutex>
#include <string>

#include "support/system_information.h"

namespace vantrix {

/// The processor in words. Each text is computed when first asked for and never changes; any thread may ask.
class ProcessorDescription {
  public:
    /// `information` outlives the description.
    explicit ProcessorDescription(const SystemInformation& information) : information_(information) {}

    /// The maker's name for the processor; "CPU" when the system does not say.
    const std::string& brand() const;

    /// Localised: "10 cores (8P + 2E)", or "8 cores" where the kinds of core are not told apart.
    const std::string& cores() const;

  private:
    const SystemInformation& information_;
    mutable std::once_flag brandOnce_;
    mutable std::once_flag coresOnce_;
    mutable std::string brand_;
    mutable std::string cores_;
};

} // namespace vantrix
