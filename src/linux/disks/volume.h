#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <sys/statvfs.h>

#include "linux/disks/chosen_volume.h"
#include "linux/disks/mounted_volumes.h"
#include "linux/kernel/rescan_schedule.h"
#include "samplers/disk_sampler.h"

namespace vantrix {

/// Asks statvfs about the volume that a folder is on; false when it does not answer. Tests answer for other machines.
using AskVolume = std::function<bool(const std::string& folder, struct statvfs& answer)>;
bool askVolume(const std::string& folder, struct statvfs& answer);

/// What a user without privileges may know of the space that statvfs told.
DiskSampler::Volume capacityOf(const struct statvfs& statistics);

/// Where the machine whose /proc is mounted at `proc` may keep what people write, in the order of preference: "/",
/// "/var", and the home folder of this user. Where `proc` is another machine's and the root of its first process may be
/// looked into, that root, and "var" and "home" in it.
std::vector<std::string> volumeFolders(const std::string& proc);

/// The place of the first folder whose volume may be written to; 0 when none may. On a system whose root is a read-only
/// image, "/" is always full, whatever people write.
std::size_t writtenFolder(const std::vector<std::string>& folders, const AskVolume& ask);

/// Capacity of the volume that people write to, or of the one that somebody chose; available is what users without
/// privileges may still write.
class VolumeStatistics : public DiskSampler::VolumeSource {
  public:
    /// `folders` are at least one, `proc` is where their machine's /proc is.
    explicit VolumeStatistics(std::vector<std::string> folders, AskVolume ask = askVolume, std::string proc = "/proc")
        : folders_(std::move(folders)), ask_(std::move(ask)), proc_(std::move(proc)),
          choices_({}, {passesPerChoice, 1}) {}

    std::optional<DiskSampler::Volume> read() override;
    void choose(const std::string& mountPoint) override;
    std::vector<std::string> mounted() const override { return mountedVolumes(proc_); }

  private:
    static constexpr int passesPerChoice = 60;

    std::vector<std::string> folders_;
    AskVolume ask_;
    std::string proc_;
    std::optional<ChosenVolume> mountPoint_; // absent: the best of the folders
    RescanSchedule choices_;
    std::size_t chosen_ = 0;
};

} // namespace vantrix
