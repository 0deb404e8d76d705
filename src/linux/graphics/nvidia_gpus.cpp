#include "linux/graphics/nvidia_gpus.h"

#include <algorithm>
#include <utility>

#include "linux/kernel/kernel_tree.h"

namespace vantrix {

void NvidiaGPUs::set(const std::string& folder, std::vector<std::string> addresses) {
    if (addresses == addresses_)
        return;
    addresses_ = std::move(addresses);
    gpus_.clear();
    const bool isLibraryInstalled = !addresses_.empty() && job_->isLibraryInstalled();
    for (const std::string& address : addresses_) {
        const std::string device = pathBelow(folder, address);
        gpus_.push_back({.powerFile = GPUPowerFile(device), .rest = GPURest(device), .tellsLoad = isLibraryInstalled});
    }
    temperatures_->assign(gpus_.size(), {});
    areNew_ = true;
}

void NvidiaGPUs::read(double now, std::vector<std::optional<double>>& loads) {
    collect();
    refreshPower(now);
    ask(now);
    collect(); // it may have been quick
    if (isUnderWay_ && now - askedAt_ > staleAfter)
        forgetAnswers();
    for (const GPU& gpu : gpus_)
        loads.push_back(gpu.isAsleep && gpu.tellsLoad ? 0.0 : gpu.load);
    tellTemperatures(now);
}

void NvidiaGPUs::tellTemperatures(double now) {
    for (std::size_t i = 0; i < gpus_.size(); ++i)
        (*temperatures_)[i].set(gpus_[i].temperature, now);
}

/// Those of GPUs that are at work; a resting one is as it was.
void NvidiaGPUs::forgetAnswers() {
    for (GPU& gpu : gpus_) {
        if (!gpu.isResting) {
            gpu.load.reset();
            gpu.temperature.reset();
        }
    }
}

void NvidiaGPUs::refreshPower(double now) {
    for (GPU& gpu : gpus_) {
        gpu.isAsleep = gpu.powerFile.read() == GPUPower::asleep;
        gpu.isResting = !gpu.isAsleep && gpu.rest.isDue(now);
        if (gpu.isAsleep) {
            gpu.rest.end();
            gpu.load.reset();
            gpu.temperature.reset();
        }
    }
}

void NvidiaGPUs::ask(double now) {
    if (isUnderWay_)
        return;
    if (std::exchange(areNew_, false))
        job_->setAddresses(addresses_);
    const bool isAnyAtWork = std::any_of(gpus_.begin(), gpus_.end(), [](const GPU& gpu) { return gpu.isAtWork(); });
    const bool isAnyAsleep = std::any_of(gpus_.begin(), gpus_.end(), [](const GPU& gpu) { return gpu.isAsleep; });
    job_->mayStart = isAnyAtWork && !isAnyAsleep && now >= job_->nextStart;
    if (!job_->isStarted && !job_->mayStart) {
        forgetAnswers();
        return;
    }
    for (std::size_t i = 0; i < gpus_.size(); ++i) {
        job_->gpus[i].isAsked = gpus_[i].isAtWork();
        job_->gpus[i].mayFallAsleep = gpus_[i].rest.mayFallAsleep();
    }
    job_->now = now;
    job_->isDone.store(false, std::memory_order_relaxed);
    askedAt_ = now;
    isUnderWay_ = background_->run(job_);
}

void NvidiaGPUs::collect() {
    if (!isUnderWay_ || !job_->isDone.load(std::memory_order_acquire))
        return;
    isUnderWay_ = false;
    if (areNew_)
        return; // the answers are about those of before
    for (std::size_t i = 0; i < gpus_.size(); ++i) {
        const NvidiaJob::GPU& answer = job_->gpus[i];
        if (!answer.isAsked)
            continue;
        gpus_[i].load = answer.load;
        gpus_[i].temperature = answer.temperature;
        gpus_[i].tellsLoad = answer.load.has_value();
        gpus_[i].rest.note(answer.load);
    }
}

} // namespace vantrix
