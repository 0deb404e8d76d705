#include "samplers/process_sampler.h"

#include <algorithm>

namespace vantrix {
namespace {

constexpr double nanoseconds = 1e9; // in a second

} // namespace

const ProcessSample* ProcessSampler::sample() {
    const double now = clock_.uptime();
    if (previousTime_ && now <= *previousTime_)
        return &sample_; // no time has passed
    if (!source_.read(current_))
        return nullptr;
    sumUp();
    const double elapsed = previousTime_ ? now - *previousTime_ : 0.0;
    list(&Use::cpuTime, elapsed * source_.processors() * nanoseconds, sample_.busiest);
    list(&Use::memory, elapsed * source_.processors() * nanoseconds, sample_.largest);
    std::swap(current_, previous_);
    previousTime_ = now;
    return &sample_;
}

void ProcessSampler::sumUp() {
    uses_.assign(source_.applications().size(), {});
    auto before = previous_.begin();
    std::uint64_t newest = newestStart_;
    for (const Process& process : current_) {
        Use& use = uses_[process.application];
        ++use.processes;
        use.memory += process.memory;
        while (before != previous_.end() && before->id < process.id)
            ++before;
        if (before != previous_.end() && before->id == process.id && before->start == process.start)
            use.cpuTime += process.cpuTime - std::min(before->cpuTime, process.cpuTime);
        else if (process.start >= newestStart_)
            use.cpuTime += process.cpuTime; // it began since; one that began before was only out of sight
        newest = std::max(newest, process.start);
    }
    newestStart_ = newest;
}

/// `capacity`: what all processors could do since the previous look, in nanoseconds.
void ProcessSampler::list(std::uint64_t Use::*rank, double capacity, std::vector<ProgramShare>& into) {
    order_.clear();
    for (std::uint32_t i = 0; i < uses_.size(); ++i)
        if (uses_[i].*rank > 0 && (capacity > 0.0 || rank == &Use::memory))
            order_.push_back(i);
    const auto count = std::min(order_.size(), ProcessSample::listLength);
    std::partial_sort(order_.begin(), order_.begin() + static_cast<std::ptrdiff_t>(count), order_.end(),
                      [&](std::uint32_t a, std::uint32_t b) { return uses_[a].*rank > uses_[b].*rank; });
    into.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const Use& use = uses_[order_[i]];
        const Application& application = source_.applications()[order_[i]];
        into[i].name = application.name;
        into[i].icon = application.icon;
        into[i].processes = use.processes;
        into[i].cpu = capacity > 0.0 ? std::min(static_cast<double>(use.cpuTime) / capacity, 1.0) : 0.0;
        into[i].memory = use.memory;
    }
}

} // namespace vantrix
