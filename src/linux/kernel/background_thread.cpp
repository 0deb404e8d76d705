#include "linux/kernel/background_thread.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace vantrix {

struct BackgroundThread::Queue {
    std::mutex mutex;
    std::condition_variable hasNews;
    std::vector<std::shared_ptr<Job>> jobs;
    bool isClosed = false;

    /// Waits for the next job; null when there will be none any more.
    std::shared_ptr<Job> take() {
        std::unique_lock lock(mutex);
        hasNews.wait(lock, [this] { return isClosed || !jobs.empty(); });
        if (isClosed)
            return nullptr;
        auto job = std::move(jobs.front());
        jobs.erase(jobs.begin());
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
    if (!queue_) {
        const auto queue = std::make_shared<Queue>();
        try {
            std::thread([queue] { queue->work(); }).detach();
        } catch (const std::system_error&) {
            return false; // no thread to be had now
        }
        queue_ = queue;
    }
    const std::lock_guard lock(queue_->mutex);
    queue_->jobs.push_back(job);
    queue_->hasNews.notify_one();
    return true;
}

} // namespace vantrix
