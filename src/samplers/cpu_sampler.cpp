#include "samplers/cpu_sampler.h"

#include "support/checked.h"

namespace vantrix {

const CPUSample* CPUSampler::sample() {
    if (!source_.read(current_))
        return nullptr;
    isBaseline_ = current_.size() != previous_.size() || current_.empty();
    sample_.total = sample_.user = sample_.system = 0.0;
    sample_.perCore.assign(current_.size(), 0.0);
    if (!isBaseline_)
        measure();
    previous_.swap(current_);
    return &sample_;
}

void CPUSampler::measure() {
    double sumAll = 0.0;
    double sumUser = 0.0;
    double sumSystem = 0.0;
    for (std::size_t i = 0; i < current_.size(); ++i) {
        const Ticks& now = current_[i];
        const Ticks& before = previous_[i];
        // Nice time is busy time: the core was not free for anything else.
        const double user = static_cast<double>(wrappingDifference(now.user, before.user)) +
                            static_cast<double>(wrappingDifference(now.nice, before.nice));
        const double system = wrappingDifference(now.system, before.system);
        const double all = user + system + wrappingDifference(now.idle, before.idle);
        if (all > 0.0)
            sample_.perCore[i] = (user + system) / all;
        sumAll += all;
        sumUser += user;
        sumSystem += system;
    }
    if (sumAll <= 0.0)
        return;
    sample_.total = (sumUser + sumSystem) / sumAll;
    sample_.user = sumUser / sumAll;
    sample_.system = sumSystem / sumAll;
}

} // namespace vantrix
