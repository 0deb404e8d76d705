#include "support/json_text.h"

#include <cmath>

#include <QByteArray>
#include <QLocale>

#include "support/utf8.h"

namespace vantrix {
namespace {

/// What stands for the character in a string; empty where it stands for itself.
std::string escapeOf(char character) {
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    constexpr char digits[] = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(character);
    return code < 0x20 ? std::string("\\u00") + digits[code >> 4] + digits[code & 15] : std::string();
}

} // namespace

void JsonText::begin(char bracket) {
    separate();
    text_ += bracket;
}

void JsonText::end(char bracket) {
    text_ += bracket;
}

/// A comma goes wherever a value or a key has come before in the same brackets.
void JsonText::separate() {
    if (!text_.empty() && std::string_view("{[:").find(text_.back()) == std::string_view::npos)
        text_ += ',';
}

void JsonText::key(std::string_view name) {
    separate();
    text_.append("\"").append(name).append("\":");
}

void JsonText::value(bool truth) {
    separate();
    text_ += truth ? "true" : "false";
}

void JsonText::value(std::int64_t number) {
    separate();
    text_ += std::to_string(number);
}

void JsonText::value(double number) {
    constexpr double exact = 1LL << 53; // beyond it not every whole number is one
    if (std::abs(number) < exact && std::trunc(number) == number)
        return value(static_cast<std::int64_t>(number));
    separate();
    // The toolkit's, as the standard library's is missing on older Macs.
    text_ +=
        std::isfinite(number) ? QByteArray::number(number, 'g', QLocale::FloatingPointShortest).toStdString() : "null";
}

void JsonText::value(std::string_view text) {
    separate();
    text_ += '"';
    for (const char character : repairedUTF8(text))
        if (const std::string escape = escapeOf(character); !escape.empty())
            text_ += escape;
        else
            text_ += character;
    text_ += '"';
}

} // namespace vantrix
