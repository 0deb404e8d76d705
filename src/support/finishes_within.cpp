#include "support/finishes_within.h"

#include <future>
#include <thread>
#include <utility>

namespace vantrix {

bool finishesWithin(std::chrono::milliseconds patience, std::function<void()> job) {
    std::packaged_task<void()> task(std::move(job));
    const auto end = task.get_future();
    std::thread thread(std::move(task));
    const bool isFinished = end.wait_for(patience) == std::future_status::ready;
    if (isFinished)
        thread.join();
    else
        thread.detach();
    return isFinished;
}

} // namespace vantrix
