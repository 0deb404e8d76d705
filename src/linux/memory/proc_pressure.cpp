#include "linux/memory/proc_pressure.h"

#include <charconv>

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

std::optional<double> parseAverage(std::string_view field) {
    constexpr std::string_view name = "avg10=";
    if (!field.starts_with(name))
        return std::nullopt;
    field.remove_prefix(name.size());
    double percent = 0.0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), percent);
    if (error != std::errc() || end != field.data() + field.size() || !(percent >= 0.0 && percent <= 100.0))
        return std::nullopt;
    return percent;
}

} // namespace

std::optional<PressureStall> parsePressure(std::string_view text) {
    std::optional<double> some;
    std::optional<double> full;
    while (const auto line = takeLine(text)) {
        Fields fields(*line);
        const auto kind = fields.next();
        if (kind == "some")
            some = parseAverage(fields.next());
        else if (kind == "full")
            full = parseAverage(fields.next());
    }
    if (!some)
        return std::nullopt;
    return PressureStall{*some, full.value_or(0.0)};
}

} // namespace vantrix
