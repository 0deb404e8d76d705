#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// Replaces the file at `path`, which other programs of the user read, by a JSON object whose only entry is `key` with
/// the value `json`. Readers see the old or the new contents, never a mixture; a power cut may cost both. The file is
/// for the user's eyes only (0600), its folder too where it has to be made. False when it cannot be written; what stood
/// there before still does.
bool writeGroupFile(const std::string& path, std::string_view key, std::string_view json);

} // namespace vantrix
