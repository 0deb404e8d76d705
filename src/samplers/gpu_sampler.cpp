#include "samplers/gpu_sampler.h"

#include <algorithm>

namespace vantrix {
namespace {

std::optional<double> loadOf(const Properties& statistics) {
    auto percent = statistics.number("Device Utilization %");
    if (!percent)
        percent = statistics.number("GPU Activity(%)");
    if (!percent)
        return std::nullopt;
    return std::clamp(*percent / 100.0, 0.0, 1.0);
}

} // namespace

std::optional<double> GPUSampler::sample() {
    const auto accelerators = source_.read();
    if (!accelerators)
        return std::nullopt;
    std::optional<double> busiest;
    for (const Properties& statistics : *accelerators) {
        const auto load = loadOf(statistics);
        if (load && (!busiest || *load > *busiest))
            busiest = load;
    }
    return busiest;
}

} // namespace vantrix
