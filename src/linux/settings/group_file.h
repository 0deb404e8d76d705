#pragma once

#include <string>
#include <string_view>

#include "posix/file_descriptor.h"

namespace vantrix {

/// A file that other programs of the user read, replaced so often that making a new one each time would cost more than
/// all else: two files, of which the one that stands aside is written and the names are then exchanged.
class GroupFile {
  public:
    /// Nothing is written yet. Removes what writers that were killed have left beside it.
    explicit GroupFile(std::string path);
    ~GroupFile();
    GroupFile(const GroupFile&) = delete;
    GroupFile& operator=(const GroupFile&) = delete;

    const std::string& path() const { return path_; }

    /// Replaces what stands at the path by a JSON object whose only entry is `key` with the value `json`, and spaces
    /// after it. Readers see the old or the new contents, never a mixture; a power cut may cost both. The file is for
    /// the user's eyes only (0600), its folder too where it has to be made. False when it cannot be written; what stood
    /// there before still does.
    bool write(std::string_view key, std::string_view json);

  private:
    bool writeAside();
    bool replace();
    bool install(std::string temporary, FileDescriptor file);
    void forgetSpare();

    std::string path_;
    std::string contents_;
    FileDescriptor shown_;  // what stood at the path when this was last written
    FileDescriptor spare_;  // the one that stands aside
    std::string spareName_; // empty without one
};

} // namespace vantrix
