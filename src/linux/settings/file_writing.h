#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "posix/file_descriptor.h"

namespace vantrix {

/// Writes all of `bytes`, also past interruptions. False on failure; errno tells why.
bool writeAll(int file, std::string_view bytes);

/// Makes a folder that only the user may enter (0700), and the folders above it as usual. False when it could not be
/// made or existed before.
bool makePrivateFolder(const std::filesystem::path& folder);

/// Holds off the other instances that are about to change files of `folder` in several steps, as long as it lives.
class FolderLock {
  public:
    /// One that holds it already is waited for no longer than `patience`.
    FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds patience);

    /// Another one still holds it. False also for a folder that is not there, or cannot be locked.
    bool isBusy() const { return isBusy_; }

  private:
    FileDescriptor folder_;
    bool isBusy_ = false;
};

/// Removes what writers of `path` that were killed have left beside it, unless it may still be in use.
void removeStrays(const std::filesystem::path& path);

/// For mkstemp: a name beside `path` that no listing shows. The six letters at its end are what mkstemp replaces.
std::string hiddenPattern(std::string_view path);

} // namespace vantrix
