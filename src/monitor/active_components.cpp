#include "monitor/active_components.h"

#include "monitor/readings.h"

namespace vantrix {
namespace {

constexpr double leastPower = 0.05; // watts; less is shown as 0.0 W

constexpr std::array components{&ComponentPower::cpu, &ComponentPower::gpu, &ComponentPower::ane,
                                &ComponentPower::dram};

} // namespace

ComponentPower ActiveComponents::among(const ComponentPower& powers) {
    static_assert(components.size() == std::tuple_size_v<decltype(passesLeft_)>);
    ComponentPower active;
    for (std::size_t i = 0; i < components.size(); ++i) {
        const std::optional<double>& power = powers.*components[i];
        if (power > leastPower)
            passesLeft_[i] = historyLength;
        if (passesLeft_[i] == 0)
            continue;
        --passesLeft_[i];
        active.*components[i] = power;
    }
    return active;
}

} // namespace vantrix
