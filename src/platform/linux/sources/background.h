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
};

} // namespace vantrix
