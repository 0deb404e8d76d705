#pragma once

#include <span>

#include "linux/kernel/background.h"

namespace vantrix {

/// A thread that is started for a job, and ends when there was none for a while. Where reading is to be repeatable,
/// jobs are performed by whoever runs them.
class BackgroundThread : public Background {
  public:
    /// Never waits for a job: a driver that hangs must not keep the program from ending. Jobs that have not begun are
    /// dropped.
    ~BackgroundThread() override;

    bool run(const std::shared_ptr<Job>& job) override { return run(std::span(&job, 1)); }
    /// Queues all of them, and wakes the thread once.
    bool run(std::span<const std::shared_ptr<Job>> jobs);
    void wait(std::chrono::milliseconds patience) override { wait(patience, std::chrono::hours(1)); }
    /// The same, but for all of them together no longer than `longest`.
    void wait(std::chrono::milliseconds patience, std::chrono::milliseconds longest);

    /// The owner of the job that has been at work for longer than `patience`; null when there is none.
    const Background* heldUpBy(std::chrono::milliseconds patience) const;
    /// Hands the waiting jobs over, but for those of `owner`.
    void handOverTo(BackgroundThread& other, const Background* owner);

  private:
    struct Queue;

    std::shared_ptr<Queue> queue_; // shared with the thread, which may outlive this
};

} // namespace vantrix
