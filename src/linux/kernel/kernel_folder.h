#pragma once

#include <memory>
#include <string>
#include <vector>

#include <dirent.h>

namespace vantrix {

/// A folder of /sys whose entries come and go: kept open and listed every few passes, which allocates nothing as long
/// as the entries stay the same. Watches do not work there; the kernel's class folders tell nobody of a new device.
class KernelFolder {
  public:
    static constexpr int usualPeriod = 5; // passes; listing costs as much as several files

    explicit KernelFolder(std::string path, int period = usualPeriod) : path_(std::move(path)), period_(period) {}

    /// Asked on every pass; lists the folder anew on the first and on every `period`-th after it. True when its entries
    /// are other than before. A folder that cannot be read has none.
    bool refresh();

    /// As the kernel orders them, without "." and "..".
    const std::vector<std::string>& names() const { return names_; }
    const std::string& path() const { return path_; }

  private:
    struct Close {
        void operator()(DIR* stream) const { closedir(stream); }
    };

    bool list();
    bool note(std::size_t place, std::string_view name);

    std::string path_;
    int period_;
    int passesToListing_ = 0;
    std::unique_ptr<DIR, Close> stream_;
    std::vector<std::string> names_;
};

} // namespace vantrix
