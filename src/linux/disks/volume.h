#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <sys/statvfs.h>

#include "linux/kernel/rescan_schedule.h"
#include "samplers/disk_sampler.h"

namespace vantrix {

/// Asks statvfs about the volume that a folder is on; false when it does not answer. Tests answer for other machines.
using AskVolume = std::function<bool(const std::string& folder, struct statvfs& answer)>;
bool askVolume(const std::string& folder, struct statvfs& answer);

/// Where the machine whose /proc is mounted at `proc` may keep what people write, in the order of preference: "/",
/// "/var", and the home folder of this user. Where `proc` is another machine's and the root of its first process may be
/// looked into, that root, and "var" and "home" in it.
std::vector<std::string> volumeFolders(const std::string& proc);

/// The place of the first folder whose volume may be written to; 0 when none may. On a system whose root is a read-only
/// image, "/" is always full, whatever people write.
std::size_t writtenFolder(const std::vector<std::string>& folders, const AskVolume& ask);

/// Capacity of the volume that people write to; available is what users without privileges may still write.
class VolumeStatistics : public DiskSampler::VolumeSource {
  public:
    /// `folders` are at least one.
    explicit VolumeStatistics(std::vector<std::string> folders, AskVolume ask = askVolume)
        : folders_(std::move(folders)), ask_(std::move(ask)), choices_({}, {passesPerChoice, 1}) {}

    std::optional<DiskSampler::Volume> read() override;

  private:
    static constexpr int passesPerChoice = 60;

    std::vector<std::string> folders_;
    AskVolume ask_;
    RescanSchedule choices_;
    std::size_t chosen_ = 0;
};

} // namespace vantrix
