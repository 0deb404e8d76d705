#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// Stands between the sources and the kernel's trees while a capture is taken: it sees all that is looked up, and
/// decides what of it the sources get to see. Paths are as the sources know them.
class TreeWatch {
  public:
    virtual ~TreeWatch() = default;

    /// Where that lies on this machine, which the sources may know by other names; holds until the next call.
    virtual const std::string& placeOf(const std::string& path) = 0;
    /// What the sources take for the text of a file, of which `text` was read, up to `limit`; holds until the watch
    /// goes. Absent when it could not be read.
    virtual std::optional<std::string_view> read(const std::string& path, std::optional<std::string_view> text,
                                                 std::size_t limit) = 0;
    /// Replaces the names in a folder by those that the sources know; keeps those that begin with `prefix`.
    virtual void list(const std::string& folder, std::string_view prefix, std::vector<std::string>& names) = 0;
    /// It was looked for what lies there; `number` is that of the entry, 0 when it was not asked for.
    virtual void find(const std::string& path, std::uint64_t number) = 0;
    /// The path without symbolic links, or `path` itself when it leads nowhere.
    virtual std::string resolve(const std::string& path) = 0;
    /// The link there was read; returns where it leads as the sources know it.
    virtual std::string follow(const std::string& path, const std::string& target) = 0;
};

/// How the kernel's trees are read, by the whole process. Set before any source is made; usually never.
struct ReadingManner {
    /// As a replay needs it: two runs over the same files read the same in the same order. Folders are sorted, and
    /// nothing is read on another thread.
    bool isRepeatable = false;
    TreeWatch* watch = nullptr; ///< outlives all sources
};

inline ReadingManner readingManner;

} // namespace vantrix
