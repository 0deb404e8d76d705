#include "macos/processor/mach_processor_ticks.h"

#include <algorithm>

namespace vantrix {

bool MachProcessorTicks::read(std::vector<CPUSampler::Ticks>& cores) {
    natural_t processors = 0;
    MachArray ticks;
    const kern_return_t result =
        host_processor_info(host_.port(), PROCESSOR_CPU_LOAD_INFO, &processors, &ticks.data, &ticks.count);
    if (result != KERN_SUCCESS || !ticks.data)
        return false;
    const std::size_t whole = std::min<std::size_t>(processors, ticks.count / CPU_STATE_MAX);
    cores.clear();
    for (std::size_t core = 0; core < whole; ++core) {
        const auto tick = [&](int state) {
            return static_cast<std::uint32_t>(ticks.data[core * CPU_STATE_MAX + static_cast<std::size_t>(state)]);
        };
        cores.push_back({.user = tick(CPU_STATE_USER),
                         .system = tick(CPU_STATE_SYSTEM),
                         .idle = tick(CPU_STATE_IDLE),
                         .nice = tick(CPU_STATE_NICE)});
    }
    return true;
}

} // namespace vantrix
