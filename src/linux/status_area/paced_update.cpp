#include "linux/status_area/paced_update.h"

namespace vantrix {

PacedUpdate::PacedUpdate(std::chrono::milliseconds pace, std::function<void()> update)
    : pace_(pace), update_(std::move(update)) {
    timer_.setSingleShot(true);
    timer_.callOnTimeout([this] { runNow(); });
}

void PacedUpdate::request() {
    // A tenth of leeway, because a pass may come a moment early.
    const auto least = pace_ - pace_ / 10;
    if (!sinceLast_.isValid() || sinceLast_.elapsed() >= least.count())
        return runNow();
    // Later than a request of the pass that is due, so that there is a wake-up of its own only without one.
    if (!timer_.isActive())
        timer_.start(pace_ + pace_ / 8 - std::chrono::milliseconds(sinceLast_.elapsed()));
}

void PacedUpdate::runNow() {
    timer_.stop();
    sinceLast_.start();
    update_();
}

} // namespace vantrix
