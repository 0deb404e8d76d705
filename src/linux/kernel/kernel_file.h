#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "posix/file_descriptor.h"

namespace vantrix {

/// A file of /proc or /sys that is read again on every pass: kept open, read from its start into a buffer that is
/// reused. Where there are so many that the process would run out of descriptors, which it needs for windows and buses,
/// it is opened for each read. After a failure it is opened anew on the next read, so a device that vanished may come
/// back.
class KernelFile {
  public:
    /// How the kernel hands the text out. A `whole` text ends with the first read that leaves room in the buffer. A
    /// list of `records` (/proc/net/dev, /proc/diskstats) comes in pieces of about a page whatever the buffer, where
    /// one with room for another record is the last. One of `longRecords` (mountinfo) ends with a read of nothing.
    enum class Kind { whole, records, longRecords };

    explicit KernelFile(std::string path, Kind kind = Kind::whole);

    /// The present text, which may be empty; holds until the next call. Absent when the file cannot be opened or
    /// read, or is longer than any kernel file (4 MiB).
    std::optional<std::string_view> read();

  private:
    std::optional<std::string_view> readText();
    bool open();
    bool fill();
    bool isLast(std::size_t piece, std::size_t room) const;

    std::string path_;
    Kind kind_;
    FileDescriptor file_;
    std::vector<char> buffer_;
    std::size_t size_ = 0;
    bool mayStayOpen_ = true;
};

} // namespace vantrix
