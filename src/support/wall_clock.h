#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace vantrix {

/// The time of day: seconds since 1 January 2001 00:00:00 UTC. Unlike `Clock` it goes on while the machine sleeps, and
/// may be set at any time; injected so that tests move it by hand.
using WallClock = std::function<double()>;

inline double secondsSince2001() {
    constexpr std::chrono::sys_days reference{std::chrono::year{2001} / 1 / 1};
    return std::chrono::duration<double>(std::chrono::system_clock::now() - reference).count();
}

/// True when `seconds` have passed from `start` to `now`, or `start` is absent: the distant past. When the clock was
/// set back, `start` becomes `now`, or the wait might last for years.
inline bool havePassed(double seconds, std::optional<double>& start, double now) {
    if (start && now < *start)
        start = now;
    return !start || now - *start >= seconds;
}

} // namespace vantrix
