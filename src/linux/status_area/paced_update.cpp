#include "linux/status_area/paced_update.h"

namespace vantrix {

PacedUpdate::PacedUpdate(std::chrono::milliseconds pace, std::function<void()> update)
    : pace_(pace), update_(std::move(update)) {
    timer_.setSingleShot(true);
    timer_.callOnTimeout([this] { runNow(); });
}

void PacedUpdate::request() {
    if (timer_.isActive())
        return;
    // A tenth of leeway, so that a pass that comes a moment early does not cost a wake-up of its own.
    const auto least = pace_ - pace_ / 10;
    if (!sinceLast_.isValid() || sinceLast_.elapsed() >= least.count())
        return runNow();
    timer_.start(pace_ - std::chrono::milliseconds(sinceLast_.elapsed()));
}

void PacedUpdate::runNow() {
    timer_.stop();
    sinceLast_.start();
    update_();
}

} // namespace vantrix
