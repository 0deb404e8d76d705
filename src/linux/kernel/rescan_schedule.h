#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantrix {

/// When devices are looked for again. Every 60 passes the names in their folders are compared with those of the last
/// search, and every 600 they are searched anyway; a sensor that stops answering asks for one at once, though not more
/// often than every 5 passes.
class RescanSchedule {
  public:
    explicit RescanSchedule(std::vector<std::string> folders) : folders_(std::move(folders)) {}

    /// Asked once at the beginning of each pass; true on the first. Whoever is told true searches.
    bool isDue();

    /// Tells that a sensor that used to answer does not.
    void noteFailure() { hasFailure_ = true; }

  private:
    std::uint64_t listing() const;

    std::vector<std::string> folders_;
    std::uint64_t lastListing_ = 0;
    int passes_ = 0;      // since the last search or comparison
    int comparisons_ = 0; // since the last search
    bool hasSearched_ = false;
    bool hasFailure_ = false;
};

} // namespace vantrix
