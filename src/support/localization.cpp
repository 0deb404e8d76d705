#include "support/localization.h"

#include <cctype>

namespace vantrix {
namespace {

Translator currentTranslator = nullptr;

struct Mark {
    std::size_t length = 0;   // 0: no mark at this place
    std::size_t position = 0; // 1-based; 0: the next value in order
};

/// The mark of that kind ("lld" or "@") that `text` begins with.
Mark markAt(std::string_view text, std::string_view kind) {
    if (!text.starts_with('%'))
        return {};
    if (text.substr(1).starts_with(kind))
        return {1 + kind.size(), 0};
    if (text.size() < 3 || !std::isdigit(static_cast<unsigned char>(text[1])) || text[2] != '$' ||
        !text.substr(3).starts_with(kind))
        return {};
    return {3 + kind.size(), static_cast<std::size_t>(text[1] - '0')};
}

template<typename Value, typename Append>
std::string filledIn(std::string_view text, std::string_view kind, std::initializer_list<Value> values, Append append) {
    std::string result;
    std::size_t next = 0;
    for (std::size_t i = 0; i < text.size();) {
        const Mark mark = markAt(text.substr(i), kind);
        const std::size_t index = mark.position > 0 ? mark.position - 1 : next;
        if (mark.length == 0 || index >= values.size()) {
            result += text[i++];
            continue;
        }
        append(result, values.begin()[index]);
        next = index + 1;
        i += mark.length;
    }
    return result;
}

} // namespace

void installTranslator(Translator translator) {
    currentTranslator = translator;
}

std::string localized(std::string_view english) {
    return currentTranslator ? currentTranslator(english, std::nullopt) : std::string(english);
}

std::string localizedCount(std::string_view english, long long count) {
    return formatted(currentTranslator ? currentTranslator(english, count) : std::string(english), {count});
}

std::string formatted(std::string_view text, std::initializer_list<long long> values) {
    return filledIn(text, "lld", values, [](std::string& into, long long value) { into += std::to_string(value); });
}

std::string formatted(std::string_view text, std::initializer_list<std::string_view> values) {
    return filledIn(text, "@", values, [](std::string& into, std::string_view value) { into += value; });
}

} // namespace vantrix
