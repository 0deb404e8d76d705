#pragma once

#include <chrono>
#include <functional>

namespace vantrix {

/// Runs `job` on a thread of its own and waits up to `patience` for it to finish. False when it did not: it is left to
/// run on, so it must own, or share, whatever it touches.
bool finishesWithin(std::chrono::milliseconds patience, std::function<void()> job);

} // namespace vantrix
