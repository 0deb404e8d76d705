#include "samplers/memory_sampler.h"

#include <algorithm>

#include "support/checked.h"

namespace vantrix {
namespace {

MemorySample::Pressure pressureOfLevel(std::optional<std::int64_t> level) {
    if (!level || *level <= 1)
        return MemorySample::Pressure::normal;
    return *level <= 3 ? MemorySample::Pressure::warning : MemorySample::Pressure::critical;
}

} // namespace

const char* wordOf(MemorySample::Pressure pressure) {
    constexpr const char* words[] = {"normal", "warning", "critical"};
    return words[static_cast<int>(pressure)];
}

std::uint64_t usedMemory(const MemorySample& memory) {
    constexpr auto fault = "the sum of app, wired and compressed memory overflows";
    return checkedAdd(checkedAdd(memory.app, memory.wired, fault), memory.compressed, fault);
}

double usedFraction(const MemorySample& memory) {
    return std::min(fractionOf(usedMemory(memory), memory.total), 1.0);
}

std::optional<MemorySample> MemorySampler::sample() {
    const auto statistics = source_.read();
    if (!statistics)
        return std::nullopt;
    const Statistics& s = *statistics;
    // The counters are not read at the same instant: purgeable may exceed internal for a moment.
    const auto purgeable = std::min(s.purgeableCount, s.internalPageCount);
    MemorySample sample;
    sample.total = s.physicalMemory;
    sample.app = checkedMultiply(s.internalPageCount - purgeable, s.pageSize, "application memory overflows");
    sample.wired = checkedMultiply(s.wireCount, s.pageSize, "wired memory overflows");
    sample.compressed = checkedMultiply(s.compressorPageCount, s.pageSize, "compressed memory overflows");
    sample.swapUsed = s.swapUsed.value_or(0);
    sample.pressure = pressureOfLevel(s.pressureLevel);
    return sample;
}

} // namespace vantrix
