#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrix {

/// What /proc/PID/stat tells of a process.
struct ProcessStat {
    std::string_view name; ///< at most 15 bytes of a program's; may hold anything, brackets and line feeds too
    std::int32_t parent = 0;
    std::int32_t session = 0; ///< the process that leads its session
    bool hasTerminal = false; ///< its session's
    bool isKernelThread = false;
    std::uint64_t ticks = 0;    ///< clock ticks in the program and in the kernel for it, without its children's
    std::uint64_t start = 0;    ///< clock ticks from the system's start
    std::uint64_t resident = 0; ///< pages, those that it shares included
};

/// Absent when the text makes no sense, or was cut short.
std::optional<ProcessStat> parseProcessStat(std::string_view text);

} // namespace vantrix
