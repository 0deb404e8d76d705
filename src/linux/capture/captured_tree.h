#pragma once

#include <string>

#include "platform/sampling_sources.h"

namespace vantrix {

/// The kernel's trees of a recorded machine, in a private folder that lies in memory where it can and goes with this.
///
/// A machine is recorded in layers, folders that hold what is other than in the one before: "proc" and "sys", and lists
/// with a path in each line of what is "absent", which "folders" are empty, and what is there but "unreadable". A layer
/// may name others beside it that it is laid upon in a list "bases".
class CapturedTree {
  public:
    CapturedTree();
    ~CapturedTree();
    CapturedTree(const CapturedTree&) = delete;
    CapturedTree& operator=(const CapturedTree&) = delete;

    /// Changes files in place as the kernel would, so that open descriptors see it. False when that fails, or when the
    /// layer reaches for what is outside; it is then laid in part.
    bool lay(const std::string& layer) const;

    /// The path of an entry, "proc/stat".
    std::string path(const std::string& entry) const { return path_ + '/' + entry; }
    KernelRoots roots() const { return {path("proc"), path("sys")}; }

  private:
    bool isInside(const std::string& entry) const;
    bool layEntry(const std::string& layer, const std::string& entry) const;

    std::string path_;
};

} // namespace vantrix
