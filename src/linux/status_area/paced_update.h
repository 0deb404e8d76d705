#pragma once

#include <chrono>
#include <functional>

#include <QElapsedTimer>
#include <QTimer>

namespace vantrix {

/// Runs an update at once, or, where the last one was less than `pace` ago, with the first request after that time; one
/// that no other follows runs by itself a little later.
class PacedUpdate {
  public:
    PacedUpdate(std::chrono::milliseconds pace, std::function<void()> update);

    void request();

    /// Runs the update at once, also in place of one that is waiting.
    void runNow();

  private:
    std::chrono::milliseconds pace_;
    std::function<void()> update_;
    QElapsedTimer sinceLast_;
    QTimer timer_;
};

} // namespace vantrix
