#include "linux/kernel/rescan_schedule.h"

namespace vantrix {

RescanSchedule::RescanSchedule(std::vector<std::string> folders, Pace pace) : pace_(pace) {
    for (std::string& folder : folders)
        folders_.emplace_back(std::move(folder), pace.listingsPerLook);
}

bool RescanSchedule::isDue() {
    constexpr int passesPerFailure = 5;
    ++passes_;
    const bool isFailureDue = hasFailure_ && passes_ >= passesPerFailure;
    if (!isFirst_ && !isFailureDue && passes_ < pace_.passesPerListing)
        return false;
    passes_ = 0;
    ++listings_;
    const bool isChanged = list();
    const bool isSearchDue = isChanged || isFirst_ || isFailureDue || listings_ == pace_.listingsPerSearch;
    if (isSearchDue)
        listings_ = 0;
    isFirst_ = false;
    hasFailure_ = false;
    return isSearchDue;
}

bool RescanSchedule::list() {
    bool isChanged = false;
    for (KernelFolder& folder : folders_)
        isChanged = folder.list() || isChanged;
    return isChanged;
}

} // namespace vantrix
