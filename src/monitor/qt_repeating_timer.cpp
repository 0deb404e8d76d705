#include "monitor/qt_repeating_timer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrix {

QtRepeatingTimer::QtRepeatingTimer() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { fire_(); });
}

void QtRepeatingTimer::schedule(double period, double tolerance, std::function<void()> fire) {
    constexpr double coarseTolerance = 0.05; // a coarse timer may be off by 5 % of its period
    fire_ = std::move(fire);
    timer_.setTimerType(tolerance >= period * coarseTolerance ? Qt::CoarseTimer : Qt::PreciseTimer);
    const double milliseconds = std::round(period * 1000.0);
    timer_.start(static_cast<int>(std::clamp(milliseconds, 1.0, static_cast<double>(std::numeric_limits<int>::max()))));
}

} // namespace vantrix
