#pragma once

#include <string>

#include "platform/sampling_sources.h"

namespace vantrix {

/// The folder with the machine's network tables. "net" in a tree of processes means the reader's own network
/// namespace, "1/net" that of the tree's machine.
std::string netFolder(const KernelRoots& roots);

} // namespace vantrix
