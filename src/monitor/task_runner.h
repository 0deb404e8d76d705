#pragma once

#include <functional>
#include <memory>

namespace vantrix {

/// Runs slow work away from the main thread.
class TaskRunner {
  public:
    virtual ~TaskRunner() = default;
    /// Calls `work` on another thread, then `done` on the main thread; `done` alone where no thread can be started. It
    /// is dropped when the runner is gone by then.
    virtual void run(std::function<void()> work, std::function<void()> done) = 0;
};

/// A thread of low priority for each task. Work that hangs is left behind when the runner goes, so it owns, or shares,
/// what it touches.
class ThreadTaskRunner final : public TaskRunner {
  public:
    /// Made on the main thread.
    ThreadTaskRunner();
    /// Gives work under way a moment to end.
    ~ThreadTaskRunner() override;
    void run(std::function<void()> work, std::function<void()> done) override;

  private:
    struct Shared;

    std::shared_ptr<Shared> shared_;
};

/// At once, on the thread that asks: so that what comes of it does not depend on how long it took.
class ImmediateTaskRunner final : public TaskRunner {
  public:
    void run(std::function<void()> work, std::function<void()> done) override {
        work();
        done();
    }
};

} // namespace vantrix
