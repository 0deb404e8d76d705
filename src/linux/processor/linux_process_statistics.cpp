#include <algorithm>
#include <charconv>

#include <unistd.h>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "platform/diagnosis.h"

namespace vantrix {
namespace {

constexpr std::size_t longest = 16384;

std::optional<double> uptimeOfMachine(const std::string& proc) {
    const auto text = readStart(proc + "/uptime", 64);
    double seconds = 0.0;
    if (!text || std::from_chars(text->data(), text->data() + text->size(), seconds).ec != std::errc())
        return std::nullopt;
    return seconds;
}

/// The times in /proc/PID/stat, in clock ticks.
bool readTimes(const std::string& folder, const std::string& proc, ProcessStatistics& statistics) {
    const auto text = readStart(folder + "/stat", longest);
    const auto machine = uptimeOfMachine(proc);
    // The second field, the program's name, may hold anything, brackets too.
    const auto name = text ? text->rfind(')') : std::string::npos;
    if (name == std::string::npos || !machine)
        return false;
    Fields fields(std::string_view(*text).substr(name + 1));
    fields.skip(11);
    const auto user = fields.number();
    const auto system = fields.number();
    fields.skip(6);
    const auto start = fields.number();
    if (!user || !system || !start)
        return false;
    const auto ticks = static_cast<double>(sysconf(_SC_CLK_TCK));
    statistics.userTime = static_cast<double>(*user) / ticks;
    statistics.systemTime = static_cast<double>(*system) / ticks;
    statistics.uptime = std::max(*machine - static_cast<double>(*start) / ticks, 0.0);
    return true;
}

/// The sum of the numbers behind `labels` in a text of lines "Label: number …"; absent without any of them.
std::optional<std::uint64_t> sumOf(std::string_view text, std::initializer_list<std::string_view> labels) {
    std::optional<std::uint64_t> sum;
    while (const auto line = takeLine(text)) {
        Fields fields(*line);
        const auto label = fields.next();
        if (std::find(labels.begin(), labels.end(), label) != labels.end())
            sum = sum.value_or(0) + fields.number().value_or(0);
    }
    return sum;
}

std::optional<std::uint64_t> bytesOf(std::optional<std::uint64_t> kibibytes) {
    return kibibytes ? std::optional(*kibibytes * 1024) : std::nullopt;
}

} // namespace

std::optional<ProcessStatistics> processStatistics(int pid, const std::string& proc) {
    const std::string folder = proc + '/' + std::to_string(pid);
    ProcessStatistics statistics;
    if (!readTimes(folder, proc, statistics))
        return std::nullopt;
    if (const auto memory = readStart(folder + "/smaps_rollup", longest)) {
        statistics.residentBytes = bytesOf(sumOf(*memory, {"Rss:"}));
        statistics.ownBytes = bytesOf(sumOf(*memory, {"Private_Clean:", "Private_Dirty:", "Private_Hugetlb:"}));
    }
    const std::string threads = folder + "/task";
    for (const std::string& thread : entriesStartingWith(threads, "")) {
        if (thread.starts_with('.'))
            continue;
        const auto status = readStart(pathBelow(threads, thread) + "/status", longest);
        // A thread wakes up as often as it goes to sleep. Other switches come from a busy machine.
        const auto switches = status ? sumOf(*status, {"voluntary_ctxt_switches:"}) : std::nullopt;
        if (!switches)
            continue; // it just ended
        statistics.wakeUps = statistics.wakeUps.value_or(0) + *switches;
        ++statistics.threads;
    }
    return statistics;
}

} // namespace vantrix
