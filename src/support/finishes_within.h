#pragma once

#include <chrono>
#include <functional>

namespace vantrix {

/// Runs `job` on a thread of its own and waits for its end, at most for `patience`. False when it was left behind: it
/// then goes on, so it owns, or shares, whatever it touches.
bool finishesWithin(std::chrono::milliseconds patience, std::function<void()> job);

} // namespace vantrix
