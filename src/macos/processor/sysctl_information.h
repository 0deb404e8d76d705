#pragma once

#include <cstddef>

#include "support/system_information.h"

namespace vantrix {

/// Copies the value `name` to `buffer`. False when it is unknown or its size is not `size`.
bool readSystemValue(const char* name, void* buffer, std::size_t size);

/// sysctlbyname.
class SysctlInformation : public SystemInformation {
  public:
    std::optional<std::int64_t> integer(std::string_view name) const override;
    std::optional<std::string> text(std::string_view name) const override;
    int processorCount() const override;
};

} // namespace vantrix
