#pragma once

#include <chrono>
#include <functional>

#include <QElapsedTimer>
#include <QTimer>

namespace vantrix {

/// Runs an update at once, or later where the last one was less than `pace` ago; requests in between become one.
class PacedUpdate {
  public:
    PacedUpdate(std::chrono::milliseconds pace, std::function<void()> update);

    void request();

    /// Runs at once whatever the pace, in place of an update that waits.
    void runNow();

  private:
    std::chrono::milliseconds pace_;
    std::function<void()> update_;
    QElapsedTimer sinceLast_;
    QTimer timer_;
};

} // namespace vantrix
