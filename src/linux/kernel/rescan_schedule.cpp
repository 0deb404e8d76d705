#include "linux/kernel/rescan_schedule.h"

#include <functional>
#include <memory>
#include <string_view>

#include <dirent.h>

namespace vantrix {
namespace {

constexpr int passesBetweenComparisons = 60;
constexpr int leastPassesBetweenSearches = 5;
constexpr int comparisonsBetweenSearches = 10; // a device may be named late, or have been misread

} // namespace

bool RescanSchedule::isDue() {
    ++passes_;
    const bool isFailureDue = hasFailure_ && passes_ >= leastPassesBetweenSearches;
    if (hasSearched_ && !isFailureDue && passes_ < passesBetweenComparisons)
        return false;
    passes_ = 0;
    const auto names = listing();
    const bool isOld = ++comparisons_ >= comparisonsBetweenSearches;
    const bool isSearchDue = !hasSearched_ || names != lastListing_ || isFailureDue || isOld;
    if (isSearchDue)
        comparisons_ = 0;
    lastListing_ = names;
    hasSearched_ = true;
    hasFailure_ = false;
    return isSearchDue;
}

/// A sum over the names, which the folder gives in no order. Nothing is kept or allocated of them.
std::uint64_t RescanSchedule::listing() const {
    std::uint64_t sum = 0;
    for (const std::string& folder : folders_) {
        const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
        if (!stream)
            continue;
        while (const dirent* entry = readdir(stream.get()))
            sum += std::hash<std::string_view>()(entry->d_name) | 1;
    }
    return sum;
}

} // namespace vantrix
