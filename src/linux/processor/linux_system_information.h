#pragma once

#include "support/system_information.h"

namespace vantrix {

/// Answers the sampler's names from /proc/cpuinfo, /sys/devices and the device tree.
class LinuxSystemInformation : public SystemInformation {
  public:
    LinuxSystemInformation(std::string proc, std::string sys) : proc_(std::move(proc)), sys_(std::move(sys)) {}

    std::optional<std::int64_t> integer(std::string_view name) const override;
    std::optional<std::string> text(std::string_view name) const override;
    int processorCount() const override;

  private:
    std::string proc_;
    std::string sys_;
};

} // namespace vantrix
