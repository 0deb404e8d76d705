#include "linux/kernel/device_threads.h"

#include <algorithm>
#include <utility>

namespace vantrix {

const std::shared_ptr<BackgroundThread>& DeviceThreads::shared() {
    if (const void* device = shared_->heldUpBy(patience)) {
        const auto heldUp = std::exchange(shared_, std::make_shared<BackgroundThread>());
        heldUp->handOverTo(*shared_, device);
    }
    return shared_;
}

void DeviceThreads::wait(BackgroundThread& thread, std::chrono::milliseconds patience) {
    const Time begin = std::chrono::steady_clock::now();
    if (begin - second_ > std::chrono::seconds(1)) {
        second_ = begin;
        waited_ = {};
    }
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(longestWait - waited_);
    if (left.count() <= 0)
        return;
    thread.wait(std::min(patience, left));
    waited_ += std::chrono::steady_clock::now() - begin;
}

bool DeviceThread::run(const std::shared_ptr<Job>& job) {
    job->owner = this;
    const auto& shared = threads_->shared();
    if (used_ && used_ != shared && used_->heldUpBy(DeviceThreads::patience) == this)
        runsAlone_ = quickRunsToReturn;
    else if (runsAlone_ > 0)
        --runsAlone_; // perhaps it was the machine that was busy
    if (runsAlone_ == 0 && used_ != shared) {
        const auto left = std::exchange(used_, shared);
        if (left)
            left->handOverTo(*shared, nullptr);
    }
    return used_->run(job);
}

void DeviceThread::wait(std::chrono::milliseconds patience) {
    if (used_)
        threads_->wait(*used_, patience);
}

} // namespace vantrix
