#pragma once

#include <optional>
#include <string>

#include "posix/file_descriptor.h"

namespace vantrix {

/// Opens a plain file for open(2)'s `flags`; new ones are for the user's eyes only (0600). Never waits, whatever stands
/// at `path`: none for a pipe, a device and anything else, and where it cannot be opened.
FileDescriptor openPlainFile(const std::string& path, int flags);

/// At most `mostBytes` of an open file, from where it stands; absent when reading fails.
std::optional<std::string> readUpTo(std::size_t mostBytes, const FileDescriptor& file);

/// The first `mostBytes` of a plain file; absent when there is none that can be read.
std::optional<std::string> readPlainFile(const std::string& path, std::size_t mostBytes);

} // namespace vantrix
