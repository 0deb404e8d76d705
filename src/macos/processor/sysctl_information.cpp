#include "macos/processor/sysctl_information.h"

#include <algorithm>
#include <cstring>

#include <sys/sysctl.h>

#include "support/utf8.h"

namespace vantrix {

bool readSystemValue(const char* name, void* buffer, std::size_t size) {
    std::size_t read = size;
    return sysctlbyname(name, buffer, &read, nullptr, 0) == 0 && read == size;
}

std::optional<std::int64_t> SysctlInformation::integer(std::string_view name) const {
    std::int32_t value = 0;
    return readSystemValue(std::string(name).c_str(), &value, sizeof value) ? std::optional<std::int64_t>(value)
                                                                            : std::nullopt;
}

std::optional<std::string> SysctlInformation::text(std::string_view name) const {
    const std::string key(name);
    std::size_t size = 0;
    if (sysctlbyname(key.c_str(), nullptr, &size, nullptr, 0) != 0 || size < 1)
        return std::nullopt;
    std::string buffer(size, '\0');
    if (sysctlbyname(key.c_str(), buffer.data(), &size, nullptr, 0) != 0)
        return std::nullopt;
    return repairedUTF8(buffer.substr(0, buffer.find('\0')));
}

int SysctlInformation::processorCount() const {
    return static_cast<int>(std::max<std::int64_t>(integer("hw.ncpu").value_or(1), 1));
}

} // namespace vantrix
