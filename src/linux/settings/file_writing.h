#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vantrix {

/// Writes all of `bytes`, also past interruptions. False on failure; errno tells why.
bool writeAll(int file, std::string_view bytes);

/// Makes a folder that only the user may enter (0700), and the folders above it as usual. False when it could not be
/// made or existed before.
bool makePrivateFolder(const std::filesystem::path& folder);

/// For mkstemp: a name beside `path` that no listing shows. The six letters at its end are what mkstemp replaces.
std::string hiddenPattern(std::string_view path);

} // namespace vantrix
