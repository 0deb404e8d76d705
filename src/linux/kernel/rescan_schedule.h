#pragma once

#include <string>
#include <vector>

#include "linux/kernel/kernel_folder.h"

namespace vantrix {

/// When devices are looked for again. Their folders are listed every so many passes, since the kernel's class folders
/// tell nobody of a new device; a sensor that stops answering asks for that at once, though not more often than every
/// 5 passes.
class RescanSchedule {
  public:
    struct Pace {
        int passesPerListing = 0;
        int listingsPerSearch = 0; ///< that often is searched though no name is new; 0 for never
        int listingsPerLook = 1;   ///< that often it is looked for a folder that is not there
    };
    /// For devices that may be named late, or be misread.
    static constexpr Pace usual{60, 10, 1};
    /// For those that people plug in and watch for. Listing costs as much as reading several files.
    static constexpr Pace quick{5, 0, 3};

    explicit RescanSchedule(std::vector<std::string> folders, Pace pace = usual);

    /// Asked once at the beginning of each pass; true on the first. A caller that is told true searches.
    bool isDue();

    /// To be called when a sensor stops answering.
    void noteFailure() { hasFailure_ = true; }

    /// As they were last listed, in the given order.
    const std::vector<KernelFolder>& folders() const { return folders_; }

  private:
    bool list();

    std::vector<KernelFolder> folders_;
    Pace pace_;
    int passes_ = 0;   // since the last listing
    int listings_ = 0; // since the last search
    bool isFirst_ = true;
    bool hasFailure_ = false;
};

} // namespace vantrix
