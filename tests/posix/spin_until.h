#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace vantrix {

/// Runs the event loop until the condition holds; false when it does not within five seconds.
template<typename Condition>
bool spinUntil(Condition condition) {
    const QDeadlineTimer deadline(5000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    return condition();
}

} // namespace vantrix
