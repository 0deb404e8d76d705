#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "linux/kernel/background_thread.h"
#include "samplers/disk_sampler.h"

namespace vantrix {

/// The capacity of what is mounted at `folder` itself; absent where nothing is. May wait for a device or a server.
std::optional<DiskSampler::Volume> volumeAt(const std::string& folder);

/// Capacity of the volume at a mount point that somebody chose. It is asked in the background: a device or a server
/// that is dead lets nobody wait.
class ChosenVolume {
  public:
    using Ask = std::function<std::optional<DiskSampler::Volume>(const std::string&)>;

    /// How long the first question waits for its answer. Others take the last one.
    static constexpr std::chrono::milliseconds patience{20};
    /// An answer this many questions old is no longer given.
    static constexpr int questionsUntilStale = 5;

    explicit ChosenVolume(std::string folder, Ask ask = volumeAt);

    /// The latest answer. Asks for the next one. One caller at a time.
    std::optional<DiskSampler::Volume> read();

  private:
    struct Question;

    std::shared_ptr<Question> question_; // shared with a thread that may outlive this
    BackgroundThread background_;
    bool isFirst_ = true;
    int unanswered_ = 0;
};

} // namespace vantrix
