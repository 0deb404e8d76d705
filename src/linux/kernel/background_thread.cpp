#include "linux/kernel/background_thread.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

#include "linux/kernel/reading_manner.h"

namespace vantrix {
namespace {

using namespace std::chrono_literals;

constexpr auto longestIdle = 30s; // a device that is read on every pass keeps its thread
constexpr auto longestStart = 1s; // of a thread on a busy machine

} // namespace

struct BackgroundThread::Queue {
    std::mutex mutex;
    std::condition_variable hasNews;
    std::condition_variable hasProgress;
    std::vector<std::shared_ptr<Job>> jobs;
    std::chrono::steady_clock::time_point begun; ///< the job at work
    const void* owner = nullptr;                 ///< of that job
    bool isWorking = false;
    bool isRunning = false; ///< the thread
    bool isClosed = false;

    /// Waits for the next job; null when the thread is to end.
    std::shared_ptr<Job> take() {
        std::unique_lock lock(mutex);
        isWorking = false;
        hasProgress.notify_all();
        const bool hasJob = hasNews.wait_for(lock, longestIdle, [this] { return isClosed || !jobs.empty(); });
        isRunning = hasJob && !isClosed;
        if (!isRunning)
            return nullptr;
        auto job = std::move(jobs.front());
        jobs.erase(jobs.begin());
        isWorking = true;
        owner = job->owner;
        begun = std::chrono::steady_clock::now();
        hasProgress.notify_all();
        return job;
    }

    void work() {
        while (const auto job = take())
            job->perform();
    }
};

BackgroundThread::~BackgroundThread() {
    if (!queue_)
        return;
    const std::lock_guard lock(queue_->mutex);
    queue_->isClosed = true;
    queue_->jobs.clear();
    queue_->hasNews.notify_one();
}

bool BackgroundThread::run(const std::shared_ptr<Job>& job) {
    if (readingManner.isRepeatable) {
        job->perform();
        return true;
    }
    if (!queue_)
        queue_ = std::make_shared<Queue>();
    const std::lock_guard lock(queue_->mutex);
    if (!queue_->isRunning) {
        try {
            std::thread([queue = queue_] { queue->work(); }).detach();
        } catch (const std::system_error&) {
            return false; // no thread to be had now
        }
        queue_->isRunning = true;
    }
    queue_->jobs.push_back(job);
    queue_->hasNews.notify_one();
    return true;
}

void BackgroundThread::wait(std::chrono::milliseconds patience) {
    if (!queue_)
        return;
    Queue& queue = *queue_;
    std::unique_lock lock(queue.mutex);
    const auto isDone = [&queue] { return queue.jobs.empty() && !queue.isWorking; };
    while (!isDone()) {
        const auto end = queue.isWorking ? queue.begun + patience : std::chrono::steady_clock::now() + longestStart;
        if (queue.hasProgress.wait_until(lock, end) == std::cv_status::timeout)
            return;
    }
}

const void* BackgroundThread::heldUpBy(std::chrono::milliseconds patience) const {
    if (!queue_)
        return nullptr;
    const std::lock_guard lock(queue_->mutex);
    const bool isHeldUp = queue_->isWorking && std::chrono::steady_clock::now() - queue_->begun > patience;
    return isHeldUp ? queue_->owner : nullptr;
}

void BackgroundThread::handOverTo(BackgroundThread& other, const void* owner) {
    if (!queue_)
        return;
    std::vector<std::shared_ptr<Job>> handedOver;
    {
        const std::lock_guard lock(queue_->mutex);
        auto& jobs = queue_->jobs;
        const auto others =
            std::stable_partition(jobs.begin(), jobs.end(), [owner](const auto& job) { return job->owner == owner; });
        handedOver.assign(others, jobs.end());
        jobs.erase(others, jobs.end());
    }
    for (const auto& job : handedOver)
        if (!other.run(job))
            run(job); // late rather than never
}

} // namespace vantrix
