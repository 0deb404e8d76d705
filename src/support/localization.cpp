#include "support/localization.h"

#include <cctype>

namespace vantrix {
namespace {

Translator currentTranslator = nullptr;

struct Mark {
    std::size_t length = 0;   // 0: no mark at this place
    std::size_t position = 0; // 1-based; 0: the next value in order
};

Mark markAt(std::string_view text) {
    constexpr std::string_view plain = "%lld";
    if (text.starts_with(plain))
        return {plain.size(), 0};
    if (text.size() < 6 || text[0] != '%' || !std::isdigit(static_cast<unsigned char>(text[1])) ||
        text.substr(2, 4) != "$lld")
        return {};
    return {6, static_cast<std::size_t>(text[1] - '0')};
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
    std::string result;
    std::size_t next = 0;
    for (std::size_t i = 0; i < text.size();) {
        const Mark mark = markAt(text.substr(i));
        const std::size_t index = mark.position > 0 ? mark.position - 1 : next;
        if (mark.length == 0 || index >= values.size()) {
            result += text[i++];
            continue;
        }
        result += std::to_string(values.begin()[index]);
        next = index + 1;
        i += mark.length;
    }
    return result;
}

} // namespace vantrix
