#pragma once

#include <memory>

namespace vantrix {

/// Runs what may take long off the sampling thread.
class Background {
  public:
    class Job {
      public:
        virtual ~Job() = default;
        virtual void perform() = 0;
    };

    virtual ~Background() = default;
    /// Queues the job, to be performed once. False when that is impossible.
    virtual bool run(const std::shared_ptr<Job>& job) = 0;

    /// Remembers that a sensor read here was very slow: others of its device that were never read then begin here, too.
    /// For the sampling thread alone.
    void noteSlowDevice() { isDeviceSlow_ = true; }
    bool isDeviceSlow() const { return isDeviceSlow_; }

  private:
    bool isDeviceSlow_ = false;
};

} // namespace vantrix
