#include "support/json_object.h"

#include <cmath>
#include <iterator>

#include <QByteArray>
#include <QLocale>

#include "support/utf8.h"

namespace vantrix {
namespace {

/// Absent for a character that stands for itself.
std::string_view escapeOf(char c) {
    constexpr std::string_view escapes[] = {
        "\\u0000", "\\u0001", "\\u0002", "\\u0003", "\\u0004", "\\u0005", "\\u0006", "\\u0007",
        "\\b",     "\\t",     "\\n",     "\\u000b", "\\f",     "\\r",     "\\u000e", "\\u000f",
        "\\u0010", "\\u0011", "\\u0012", "\\u0013", "\\u0014", "\\u0015", "\\u0016", "\\u0017",
        "\\u0018", "\\u0019", "\\u001a", "\\u001b", "\\u001c", "\\u001d", "\\u001e", "\\u001f",
    };
    if (c == '"')
        return "\\\"";
    if (c == '\\')
        return "\\\\";
    const auto code = static_cast<unsigned char>(c);
    return code < std::size(escapes) ? escapes[code] : std::string_view();
}

} // namespace

void appendJson(std::string& json, bool value) {
    json += value ? "true" : "false";
}

void appendJson(std::string& json, int value) {
    json += std::to_string(value);
}

void appendJson(std::string& json, std::int64_t value) {
    json += std::to_string(value);
}

void appendJson(std::string& json, std::uint64_t value) {
    json += std::to_string(value);
}

void appendJson(std::string& json, double value) {
    constexpr double exactLimit = 9007199254740992.0; // up to here a double tells all whole numbers apart
    if (std::abs(value) < exactLimit && value == std::trunc(value))
        return appendJson(json, static_cast<std::int64_t>(value));
    if (!std::isfinite(value)) {
        json += "null";
        return;
    }
    const QByteArray digits = QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    json.append(digits.constData(), static_cast<std::size_t>(digits.size()));
}

void appendJson(std::string& json, std::string_view text) {
    json += '"';
    for (const char c : repairedUTF8(text)) {
        const auto escape = escapeOf(c);
        if (escape.empty())
            json += c;
        else
            json += escape;
    }
    json += '"';
}

} // namespace vantrix
