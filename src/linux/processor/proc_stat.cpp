#include "linux/processor/proc_stat.h"

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

constexpr std::string_view corePrefix = "cpu";
constexpr std::uint64_t largestJitter = 1000; // ticks, 10 s: a longer step back is a counter that started over

std::optional<CoreTicks> parseCore(std::string_view line) {
    Fields fields(line);
    const auto core = fields.number();
    const auto user = fields.number();
    const auto nice = fields.number();
    const auto system = fields.number();
    const auto idle = fields.number();
    if (!core || !user || !nice || !system || !idle)
        return std::nullopt;
    const auto inputOutput = fields.number().value_or(0);
    const auto interrupts = fields.number().value_or(0) + fields.number().value_or(0);
    const auto stolen = fields.number().value_or(0);
    return CoreTicks{*core, *user, *nice, *system + interrupts + stolen, *idle + inputOutput};
}

} // namespace

bool parseProcStat(std::string_view text, std::vector<CoreTicks>& cores) {
    cores.clear();
    // The lines of the cores come first; what follows is long and of no use here.
    while (text.starts_with(corePrefix)) {
        const auto line = takeLine(text);
        if (!line)
            return false;
        const auto rest = line->substr(corePrefix.size());
        if (rest.starts_with(' '))
            continue; // the sum over all cores
        const auto core = parseCore(rest);
        if (!core)
            return false;
        cores.push_back(*core);
    }
    return !cores.empty();
}

std::uint32_t SteadyCounter::advance(std::uint64_t raw) {
    if (raw < last_) {
        if (last_ - raw <= largestJitter)
            raw = last_;
        else
            restart(raw);
    }
    last_ = raw;
    return static_cast<std::uint32_t>(raw + offset_);
}

void SteadyCounter::restart(std::uint64_t raw) {
    offset_ += last_ - raw;
    last_ = raw;
}

void ProcStatSource::Core::restart(const CoreTicks& ticks) {
    number = ticks.core;
    user.restart(ticks.user);
    system.restart(ticks.system);
    idle.restart(ticks.idle);
    nice.restart(ticks.nice);
}

CPUSampler::Ticks ProcStatSource::Core::advance(const CoreTicks& ticks) {
    return {user.advance(ticks.user), system.advance(ticks.system), idle.advance(ticks.idle), nice.advance(ticks.nice)};
}

bool ProcStatSource::read(std::vector<CPUSampler::Ticks>& cores) {
    const auto text = file_.read();
    if (!text || !parseProcStat(*text, lines_))
        return false;
    if (cores_.size() != lines_.size()) {
        cores_.clear();
        for (const CoreTicks& line : lines_)
            cores_.push_back({line.core, {}, {}, {}, {}});
    }
    cores.resize(lines_.size());
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        // One core went offline while another came: no time has passed for the newcomer yet.
        if (cores_[i].number != lines_[i].core)
            cores_[i].restart(lines_[i]);
        cores[i] = cores_[i].advance(lines_[i]);
    }
    return true;
}

} // namespace vantrix
