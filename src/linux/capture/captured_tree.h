#pragma once

#include <string>

#include "platform/sampling_sources.h"

namespace vantrix {

/// Lays a layer of a recorded machine over what is in `folder`. It holds what is other there: the trees "proc" and
/// "sys", and lists with a path in each line of what is "absent", which "folders" are empty, and what is there but
/// "unreadable". It may name others beside it that it is laid upon in a list "bases".
///
/// Files are changed in place as the kernel would, so that open descriptors see it. False when that fails, or when the
/// layer reaches for what is outside; it is then laid in part.
bool layOver(const std::string& folder, const std::string& layer);

/// The kernel's trees of a recorded machine, in a private folder that lies in memory where it can and goes with this.
class CapturedTree {
  public:
    CapturedTree();
    ~CapturedTree();
    CapturedTree(const CapturedTree&) = delete;
    CapturedTree& operator=(const CapturedTree&) = delete;

    bool lay(const std::string& layer) const { return !path_.empty() && layOver(path_, layer); }
    KernelRoots roots() const { return {path_ + "/proc", path_ + "/sys"}; }

  private:
    std::string path_;
};

} // namespace vantrix
