#include "linux/memory/proc_meminfo.h"

#include <iterator>

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

struct Line {
    std::string_view name;
    MemInfo::Value MemInfo::*value;
};

/// In the order of the file, so that the search for a line ends where the last one ended.
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

const Line* findLine(std::string_view name, std::size_t next) {
    for (std::size_t i = 0; i < std::size(lines); ++i) {
        const Line& line = lines[(next + i) % std::size(lines)];
        if (line.name.size() == name.size() && line.name == name)
            return &line;
    }
    return nullptr;
}

} // namespace

std::optional<MemInfo> parseMemInfo(std::string_view text) {
    if (!text.ends_with('\n'))
        return std::nullopt;
    MemInfo info;
    std::size_t next = 0;
    while (next < std::size(lines)) { // more than half of the file comes after the last
        const auto line = takeLine(text);
        if (!line)
            break;
        const auto name = line->substr(0, line->find(':'));
        const Line* const known = findLine(name, next);
        if (known == nullptr || name.size() == line->size())
            continue;
        next = static_cast<std::size_t>(known - lines) + 1;
        const auto value = Fields(line->substr(name.size() + 1)).number();
        if (value && *value <= largestMemory)
            info.*known->value = value;
    }
    if (info.memTotal.value_or(0) == 0 || !info.memFree)
        return std::nullopt;
    return info;
}

} // namespace vantrix
