#pragma once

#include <memory>
#include <string>
#include <vector>

#include <dirent.h>

namespace vantrix {

/// A folder of /sys whose entries come and go. It is kept open; listing it allocates nothing as long as the entries
/// stay the same.
class KernelFolder {
  public:
    /// One that is empty or not there is looked up only on every `listingsPerLook`th listing.
    explicit KernelFolder(std::string path, int listingsPerLook = 1)
        : path_(std::move(path)), listingsPerLook_(listingsPerLook) {}

    /// True when the entries are other than before. A folder that cannot be read has none.
    bool list();

    /// As the kernel orders them, without "." and "..".
    const std::vector<std::string>& names() const { return names_; }
    const std::string& path() const { return path_; }

  private:
    struct Close {
        void operator()(DIR* stream) const { closedir(stream); }
    };

    bool listSorted();
    bool note(std::size_t place, std::string_view name);

    std::string path_;
    int listingsPerLook_;
    int emptyListings_ = 0; // in a row
    std::unique_ptr<DIR, Close> stream_;
    std::vector<std::string> names_;
};

} // namespace vantrix
