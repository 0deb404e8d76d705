#include "linux/kernel/device_threads.h"

#include <algorithm>
#include <utility>

#include "linux/kernel/reading_manner.h"

namespace vantrix {

void DeviceThreads::end() {
    isInPass_ = false;
    handOver();
}

bool DeviceThreads::run(const std::shared_ptr<Background::Job>& job) {
    if (!isInPass_ || readingManner.isRepeatable)
        return static_cast<DeviceThread*>(job->owner)->choose(shared()).run(job);
    gathered_.push_back(job);
    return true;
}

void DeviceThreads::handOver() {
    if (gathered_.empty())
        return;
    const auto& shared = this->shared();
    std::erase_if(gathered_, [&shared](const auto& job) {
        BackgroundThread& thread = static_cast<DeviceThread*>(job->owner)->choose(shared);
        return &thread != shared.get() && thread.run(job);
    });
    if (!gathered_.empty() && shared->run(gathered_)) // else once more on the next pass
        gathered_.clear();
}

const std::shared_ptr<BackgroundThread>& DeviceThreads::shared() {
    if (const Background* device = shared_->heldUpBy(patience)) {
        const auto heldUp = std::exchange(shared_, std::make_shared<BackgroundThread>());
        heldUp->handOverTo(*shared_, device);
    }
    return shared_;
}

void DeviceThreads::wait(const DeviceThread& device, std::chrono::milliseconds patience) {
    handOver();
    if (device.used() == nullptr)
        return;
    const Time begin = std::chrono::steady_clock::now();
    if (begin - second_ > std::chrono::seconds(1)) {
        second_ = begin;
        waited_ = {};
    }
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(longestWait - waited_);
    if (left.count() <= 0)
        return;
    device.used()->wait(patience, left);
    waited_ += std::chrono::steady_clock::now() - begin;
}

void DeviceThreads::forget(const DeviceThread& device) {
    std::erase_if(gathered_, [&device](const auto& job) { return job->owner == &device; });
}

bool DeviceThread::run(const std::shared_ptr<Job>& job) {
    job->owner = this;
    return threads_->run(job);
}

BackgroundThread& DeviceThread::choose(const std::shared_ptr<BackgroundThread>& shared) {
    if (used_ && used_ != shared && used_->heldUpBy(DeviceThreads::patience) == this)
        runsAlone_ = quickRunsToReturn;
    else if (runsAlone_ > 0)
        --runsAlone_; // perhaps it was the machine that was busy
    if (runsAlone_ == 0 && used_ != shared) {
        const auto left = std::exchange(used_, shared);
        if (left)
            left->handOverTo(*shared, nullptr);
    }
    return *used_;
}

} // namespace vantrix
