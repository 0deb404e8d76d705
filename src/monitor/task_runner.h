#pragma once

#include <functional>

#include <QObject>
#include <QThreadPool>

namespace vantrix {

/// Runs slow work away from the main thread.
class TaskRunner {
  public:
    virtual ~TaskRunner() = default;
    /// Calls `work` on another thread at low priority, then `done` on the main thread. `done` is dropped when the
    /// runner is gone by then.
    virtual void run(std::function<void()> work, std::function<void()> done) = 0;
};

class ThreadTaskRunner final : public TaskRunner {
  public:
    ThreadTaskRunner();
    void run(std::function<void()> work, std::function<void()> done) override;

  private:
    QObject mainThread_; // outlives the pool: what is posted to it is dropped with it
    QThreadPool pool_;
};

} // namespace vantrix
