#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

struct KernelRoots;

/// Looks into a kernel file tree; too slow for every pass.

/// The first `limit` bytes of a file; absent when it cannot be read.
std::optional<std::string> readStart(const std::string& path, std::size_t limit = 4096);

/// Where what the sources know as `path` lies on this machine; as good as always there.
const std::string& placeOf(const std::string& path);

/// The path of an entry of `folder`.
std::string pathBelow(const std::string& folder, std::string_view entry);

bool pathExists(const std::string& path);

/// A number that tells what lies at a path from whatever lay there before or will later; 0 when nothing does. The
/// kernel gives every device that it adds to /sys a new one, which stays when the device is renamed.
std::uint64_t entryNumber(const std::string& path);

/// Where the symbolic link at a path leads, as it is written; empty when there is none.
std::string linkTarget(const std::string& path);

/// The path without symbolic links; as it was when it leads nowhere. Devices are opened by their own place in the tree,
/// so that a file that is opened anew is never that of another device which was given the same number.
std::string resolvedPath(const std::string& path);

/// True when `name` can be one entry of a folder, so that a path made with it stays below that folder.
bool isEntryName(std::string_view name);

/// Names in `folder` that begin with `prefix`, in no order; empty when the folder cannot be read.
std::vector<std::string> entriesStartingWith(const std::string& folder, std::string_view prefix);

/// The folder with the machine's network tables. <proc>/net is that of the reader's own network namespace, <proc>/1/net
/// that of the machine whose tree it is.
std::string netFolder(const KernelRoots& roots);

} // namespace vantrix
