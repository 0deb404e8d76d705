#include "linux/processes/proc_pid_stat.h"

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

constexpr std::uint64_t kernelThread = 0x00200000; // PF_KTHREAD
constexpr std::uint64_t mostTicks = std::uint64_t{1} << 40;
constexpr std::uint64_t mostPages = std::uint64_t{1} << 40;

} // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text) {
    const auto open = text.find('(');
    const auto close = text.rfind(')'); // nothing behind it is text
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return std::nullopt;
    ProcessStat stat;
    stat.name = text.substr(open + 1, close - open - 1);
    Fields fields(text.substr(close + 1));
    fields.skip(1); // its state
    const auto parent = fields.number();
    fields.skip(1); // its group
    const auto session = fields.number();
    stat.hasTerminal = fields.next() != "0";
    fields.skip(1); // the group in the foreground, which may be -1
    const auto flags = fields.number();
    fields.skip(4); // faults
    const auto user = fields.number();
    const auto system = fields.number();
    fields.skip(6); // of its children, and how it is scheduled
    const auto start = fields.number();
    fields.skip(1); // addresses
    const auto resident = fields.number();
    if (!parent || !session || !flags || !user || !system || !start || !resident)
        return std::nullopt;
    if (*user > mostTicks || *system > mostTicks || *resident > mostPages)
        return std::nullopt;
    stat.parent = static_cast<std::int32_t>(*parent);
    stat.session = static_cast<std::int32_t>(*session);
    stat.isKernelThread = (*flags & kernelThread) != 0;
    stat.ticks = *user + *system;
    stat.start = *start;
    stat.resident = *resident;
    return stat;
}

} // namespace vantrix
