#pragma once

#include <chrono>
#include <memory>

namespace vantrix {

/// Runs what may take long off the sampling thread.
class Background {
  public:
    class Job {
      public:
        virtual ~Job() = default;
        virtual void perform() = 0;

        Background* owner = nullptr; ///< by whom it was asked for; tells apart those who share a thread
    };

    virtual ~Background() = default;
    /// Queues the job, to be performed once. False when that is impossible.
    virtual bool run(const std::shared_ptr<Job>& job) = 0;
    /// Waits until all jobs are performed, but for none longer than `patience` from its beginning on.
    virtual void wait(std::chrono::milliseconds patience) = 0;
};

} // namespace vantrix
