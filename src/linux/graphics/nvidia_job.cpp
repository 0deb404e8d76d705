#include "linux/graphics/nvidia_job.h"

#include <algorithm>

#include "linux/graphics/gpu_power.h"

namespace vantrix {
namespace {

constexpr double retryDelay = 60.0; // seconds

/// Whether the library has to be started anew; a GPU that just does not tell its load is no reason to.
bool endsLibrary(int answer) {
    return answer == NvidiaLibrary::notInitialized || answer == NvidiaLibrary::isLost ||
           answer == NvidiaLibrary::unknownError;
}

} // namespace

void NvidiaJob::setAddresses(const std::vector<std::string>& addresses) {
    gpus.clear();
    for (const std::string& address : addresses)
        gpus.push_back({.address = address});
    areGPUsNew_ = true;
    nextStart = 0.0;
}

void NvidiaJob::perform() {
    if (std::exchange(areGPUsNew_, false))
        stop();
    if (!isStarted && mayStart)
        start();
    for (GPU& gpu : gpus)
        ask(gpu);
    const auto keepsLibrary = [](const GPU& gpu) {
        return gpu.isAsked && !(gpu.mayFallAsleep && gpu.load.value_or(100.0) < GPURest::idle);
    };
    if (std::none_of(gpus.begin(), gpus.end(), keepsLibrary))
        stop();
    isDone.store(true, std::memory_order_release);
}

void NvidiaJob::start() {
    nextStart = now + retryDelay;
    if (!library_->start())
        return;
    isStarted = true;
    for (GPU& gpu : gpus)
        gpu.device = library_->find(gpu.address);
}

void NvidiaJob::stop() {
    if (!isStarted)
        return;
    library_->stop();
    isStarted = false;
    nextStart = 0.0;
}

void NvidiaJob::ask(GPU& gpu) {
    gpu.load.reset();
    gpu.temperature.reset();
    if (!isStarted || !gpu.isAsked || !gpu.device)
        return;
    unsigned percent = 0;
    const int answer = library_->utilization(*gpu.device, percent);
    if (answer == NvidiaLibrary::success)
        gpu.load = percent;
    if (!endsLibrary(answer)) {
        gpu.temperature = library_->temperature(*gpu.device);
        return;
    }
    stop(); // the driver may have been reloaded
    nextStart = now + retryDelay;
}

} // namespace vantrix
