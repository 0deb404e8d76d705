#include "linux/kernel/background_thread.h"

#include <algorithm>
#include <atomic>
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
    using Jobs = std::vector<std::shared_ptr<Job>>;

    std::mutex mutex; // of all but what is atomic
    std::condition_variable hasNews;
    std::condition_variable hasProgress;
    Jobs waiting;
    Jobs round;    ///< those at work, which change hands with `begun` alone
    Jobs finished; ///< of the thread alone
    std::atomic<std::size_t> begun = 0;
    std::atomic<std::chrono::steady_clock::time_point> lastBegin; ///< of the job at work
    std::atomic<const Background*> owner = nullptr;               ///< of that job
    bool isWorking = false;
    bool isAwaited = false;
    bool isRunning = false; ///< the thread
    bool isClosed = false;

    /// Waits for jobs, and begins with all that there are; false when the thread is to end.
    bool takeRound() {
        std::unique_lock lock(mutex);
        finished.swap(round);
        isWorking = false;
        tellProgress();
        lock.unlock();
        finished.clear(); // which may close a device's files, and hang
        lock.lock();
        const bool hasJobs = hasNews.wait_for(lock, longestIdle, [this] { return isClosed || !waiting.empty(); });
        isRunning = hasJobs && !isClosed;
        if (!isRunning)
            return false;
        round.swap(waiting);
        begun = 0;
        lastBegin = std::chrono::steady_clock::now();
        owner = round.front()->owner;
        isWorking = true;
        tellProgress();
        return true;
    }

    void tellProgress() {
        if (isAwaited)
            hasProgress.notify_all();
    }

    void work() {
        while (takeRound()) {
            const std::size_t count = round.size();
            for (std::size_t i = 0; (i = begun++) < count;) {
                lastBegin = std::chrono::steady_clock::now(); // before the owner: who sees that sees its beginning, too
                owner = round[i]->owner;
                round[i]->perform();
            }
        }
    }

    /// Takes all jobs that have not begun. The lock is held.
    Jobs takeRest() {
        Jobs rest;
        if (isWorking)
            for (std::size_t i = begun.exchange(round.size()); i < round.size(); ++i)
                rest.push_back(round[i]);
        rest.insert(rest.end(), waiting.begin(), waiting.end());
        waiting.clear();
        return rest;
    }
};

BackgroundThread::~BackgroundThread() {
    if (!queue_)
        return;
    const std::lock_guard lock(queue_->mutex);
    queue_->isClosed = true;
    queue_->takeRest();
    queue_->hasNews.notify_one();
}

bool BackgroundThread::run(std::span<const std::shared_ptr<Job>> jobs) {
    if (readingManner.isRepeatable) {
        for (const auto& job : jobs)
            job->perform();
        return true;
    }
    if (!queue_)
        queue_ = std::make_shared<Queue>();
    std::unique_lock lock(queue_->mutex);
    if (!queue_->isRunning) {
        try {
            std::thread([queue = queue_] { queue->work(); }).detach();
        } catch (const std::system_error&) {
            return false; // no thread to be had now
        }
        queue_->isRunning = true;
    }
    queue_->waiting.insert(queue_->waiting.end(), jobs.begin(), jobs.end());
    const bool isIdle = !queue_->isWorking;
    lock.unlock(); // or the thread would wake up just to wait for it
    if (isIdle)
        queue_->hasNews.notify_one();
    return true;
}

void BackgroundThread::wait(std::chrono::milliseconds patience, std::chrono::milliseconds longest) {
    if (!queue_)
        return;
    Queue& queue = *queue_;
    const auto latest = std::chrono::steady_clock::now() + longest;
    std::unique_lock lock(queue.mutex);
    queue.isAwaited = true;
    while (queue.isWorking || !queue.waiting.empty()) {
        const auto now = std::chrono::steady_clock::now();
        const auto end = std::min(latest, queue.isWorking ? queue.lastBegin.load() + patience : now + longestStart);
        if (now >= end || (queue.hasProgress.wait_until(lock, end) == std::cv_status::timeout && !queue.isWorking))
            break;
    }
    queue.isAwaited = false;
}

const Background* BackgroundThread::heldUpBy(std::chrono::milliseconds patience) const {
    if (!queue_)
        return nullptr;
    const std::lock_guard lock(queue_->mutex);
    const Background* const owner = queue_->owner;
    const bool isHeldUp = queue_->isWorking && std::chrono::steady_clock::now() - queue_->lastBegin.load() > patience;
    return isHeldUp ? owner : nullptr;
}

void BackgroundThread::handOverTo(BackgroundThread& other, const Background* owner) {
    if (!queue_)
        return;
    Queue::Jobs handedOver;
    {
        const std::lock_guard lock(queue_->mutex);
        handedOver = queue_->takeRest();
        const auto kept = std::stable_partition(handedOver.begin(), handedOver.end(),
                                                [owner](const auto& job) { return job->owner != owner; });
        queue_->waiting.assign(kept, handedOver.end());
        handedOver.erase(kept, handedOver.end());
    }
    if (!handedOver.empty() && !other.run(handedOver))
        run(handedOver); // late rather than never
}

} // namespace vantrix
