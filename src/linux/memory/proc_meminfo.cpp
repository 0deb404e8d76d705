#include "linux/memory/proc_meminfo.h"

#include <algorithm>
#include <iterator>

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

struct Line {
    std::string_view name;
    MemInfo::Value MemInfo::*value;
};

constexpr Line lines[] = {
    {"MemTotal", &MemInfo::memTotal},
    {"MemFree", &MemInfo::memFree},
    {"MemAvailable", &MemInfo::memAvailable},
    {"Buffers", &MemInfo::buffers},
    {"Cached", &MemInfo::cached},
    {"SwapCached", &MemInfo::swapCached},
    {"Active(anon)", &MemInfo::activeAnon},
    {"Inactive(anon)", &MemInfo::inactiveAnon},
    {"Active(file)", &MemInfo::activeFile},
    {"Inactive(file)", &MemInfo::inactiveFile},
    {"Unevictable", &MemInfo::unevictable},
    {"SwapTotal", &MemInfo::swapTotal},
    {"SwapFree", &MemInfo::swapFree},
    {"Zswap", &MemInfo::zswap},
    {"AnonPages", &MemInfo::anonPages},
    {"Shmem", &MemInfo::shmem},
    {"KReclaimable", &MemInfo::kReclaimable},
    {"SReclaimable", &MemInfo::sReclaimable},
};

} // namespace

std::optional<MemInfo> parseMemInfo(std::string_view text) {
    MemInfo info;
    while (const auto line = takeLine(text)) {
        const auto colon = line->find(':');
        if (colon == std::string_view::npos)
            continue;
        const auto name = line->substr(0, colon);
        const auto known =
            std::find_if(std::begin(lines), std::end(lines), [&](const Line& other) { return other.name == name; });
        if (known == std::end(lines))
            continue;
        const auto value = Fields(line->substr(colon + 1)).number();
        if (value && *value <= largestMemory)
            info.*known->value = value;
    }
    if (!text.empty() || info.memTotal.value_or(0) == 0 || !info.memFree)
        return std::nullopt;
    return info;
}

} // namespace vantrix
