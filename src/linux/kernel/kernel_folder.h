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
    explicit KernelFolder(std::string path) : path_(std::move(path)) {}

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
    std::unique_ptr<DIR, Close> stream_;
    std::vector<std::string> names_;
};

} // namespace vantrix
