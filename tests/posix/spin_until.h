#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace vantrix {

/// Runs the event loop until the condition holds; false when it does not come to hold in time.
template<typename Condition>
bool spinUntil(Condition condition, std::chrono::milliseconds patience = std::chrono::seconds(20)) {
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return true;
}

} // namespace vantrix
