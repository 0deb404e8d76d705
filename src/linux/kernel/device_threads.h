#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "linux/kernel/background_thread.h"
#include "samplers/pass_bracket.h"

namespace vantrix {

class DeviceThread;

/// The threads that read the devices of a machine. One serves all of them, as long as they answer; a device that does
/// not keeps it to itself for a while, and the others get another. What is asked for in the course of a pass is handed
/// over at its end, or when something of it is waited for, so that the thread is woken once. For the sampling thread
/// alone.
class DeviceThreads : public PassBracket {
  public:
    /// From its beginning on, what takes longer holds the others up.
    static constexpr std::chrono::milliseconds patience{20};
    /// The longest that all waiting takes together in any second.
    static constexpr std::chrono::milliseconds longestWait{40};

    void begin() override { isInPass_ = true; }
    void end() override;

    bool run(const std::shared_ptr<Background::Job>& job);
    void wait(const DeviceThread& device, std::chrono::milliseconds patience);
    /// Drops what was gathered for a device that goes.
    void forget(const DeviceThread& device);

  private:
    using Time = std::chrono::steady_clock::time_point;

    const std::shared_ptr<BackgroundThread>& shared();
    void handOver();

    std::shared_ptr<BackgroundThread> shared_ = std::make_shared<BackgroundThread>(); // for all who answer
    std::vector<std::shared_ptr<Background::Job>> gathered_;
    bool isInPass_ = false;
    Time second_{};
    std::chrono::steady_clock::duration waited_{};
};

/// The thread that one device is read on.
class DeviceThread : public Background {
  public:
    explicit DeviceThread(std::shared_ptr<DeviceThreads> threads) : threads_(std::move(threads)) {}
    ~DeviceThread() override { threads_->forget(*this); }
    DeviceThread(const DeviceThread&) = delete;
    DeviceThread& operator=(const DeviceThread&) = delete;

    bool run(const std::shared_ptr<Job>& job) override;
    void wait(std::chrono::milliseconds patience) override { threads_->wait(*this, patience); }

    /// The thread for the next job: `shared`, or the one that this device holds up.
    BackgroundThread& choose(const std::shared_ptr<BackgroundThread>& shared);
    /// The thread that was chosen last; null before the first job.
    BackgroundThread* used() const { return used_.get(); }

  private:
    static constexpr int quickRunsToReturn = 100; ///< in a row

    std::shared_ptr<DeviceThreads> threads_;
    std::shared_ptr<BackgroundThread> used_; ///< last
    int runsAlone_ = 0;                      ///< that are left until it shares again
};

} // namespace vantrix
