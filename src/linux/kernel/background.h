#pragma once

#include <memory>

namespace vantrix {

/// Runs what may take long away from the sampling pass.
class Background {
  public:
    class Job {
      public:
        virtual ~Job() = default;
        virtual void perform() = 0;
    };

    virtual ~Background() = default;
    /// Performs the job later, once, after those given before it. False when it cannot.
    virtual bool run(const std::shared_ptr<Job>& job) = 0;

    /// A sensor that this serves was very slow: others of its device that were never read begin here. For the sampling
    /// thread alone.
    void noteSlowDevice() { isDeviceSlow_ = true; }
    bool isDeviceSlow() const { return isDeviceSlow_; }

  private:
    bool isDeviceSlow_ = false;
};

} // namespace vantrix
