#include "sensors/io_report_sampler.h"

#include <string_view>
#include <utility>

namespace vantrix {
namespace {

constexpr double leastElapsed = 0.1; // seconds

std::optional<double> divisorOf(const std::optional<std::string>& unit) {
    if (unit == "mJ")
        return 1e3;
    if (unit == "uJ")
        return 1e6;
    if (unit == "nJ")
        return 1e9;
    return std::nullopt;
}

std::optional<double>* componentOf(std::string_view name, ComponentPower& power) {
    if (name == "GPU Energy")
        return &power.gpu;
    if (name.ends_with("CPU Energy"))
        return &power.cpu; // one channel per cluster
    if (name.starts_with("ANE"))
        return &power.ane;
    if (name.starts_with("DRAM"))
        return &power.dram;
    return nullptr;
}

} // namespace

std::optional<ComponentPower> IOReportSampler::read() {
    if (!source_.takeSnapshot())
        return std::nullopt; // the next good one measures over the whole gap
    const double now = clock_.uptime();
    const auto before = std::exchange(previousTime_, now);
    if (!before || !(now - *before > leastElapsed) || !source_.readDifference(channels_))
        return std::nullopt;
    return sum(now - *before);
}

std::optional<ComponentPower> IOReportSampler::sum(double elapsed) const {
    ComponentPower power;
    for (const Channel& channel : channels_) {
        const auto divisor = divisorOf(channel.unit);
        if (channel.group != "Energy Model" || !channel.name || !divisor)
            continue;
        const double watts = static_cast<double>(channel.value) / *divisor / elapsed;
        auto* const component = componentOf(*channel.name, power);
        if (component && watts >= 0.0 && watts < 500.0)
            *component = component->value_or(0.0) + watts;
    }
    return power == ComponentPower() ? std::nullopt : std::optional(power);
}

} // namespace vantrix
