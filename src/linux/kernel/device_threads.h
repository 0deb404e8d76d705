#pragma once

#include <chrono>
#include <memory>

#include "linux/kernel/background_thread.h"

namespace vantrix {

/// The threads that read the devices of a machine. One serves all of them, as long as they answer; a device that does
/// not keeps it to itself for a while, and the others get another. For the sampling thread alone.
class DeviceThreads {
  public:
    /// From its beginning on, what takes longer holds the others up.
    static constexpr std::chrono::milliseconds patience{20};
    /// The longest that all waiting takes together in any second.
    static constexpr std::chrono::milliseconds longestWait{40};

    /// The one for all who answer.
    const std::shared_ptr<BackgroundThread>& shared();
    void wait(BackgroundThread& thread, std::chrono::milliseconds patience);

  private:
    using Time = std::chrono::steady_clock::time_point;

    std::shared_ptr<BackgroundThread> shared_ = std::make_shared<BackgroundThread>();
    Time second_{};
    std::chrono::steady_clock::duration waited_{};
};

/// The thread that one device is read on.
class DeviceThread : public Background {
  public:
    explicit DeviceThread(std::shared_ptr<DeviceThreads> threads) : threads_(std::move(threads)) {}

    bool run(const std::shared_ptr<Job>& job) override;
    void wait(std::chrono::milliseconds patience) override;

  private:
    static constexpr int quickRunsToReturn = 100; ///< in a row

    std::shared_ptr<DeviceThreads> threads_;
    std::shared_ptr<BackgroundThread> used_; ///< last
    int runsAlone_ = 0;                      ///< that are left until it shares again
};

} // namespace vantrix
