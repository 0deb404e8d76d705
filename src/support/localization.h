#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// Looks up a user-visible text by its English form; `count` chooses among its plural forms where it has any. Texts
/// with values in them use printf-like "%lld" and "%@" marks, filled in by `formatted`, so that a translation may
/// reorder them with "%2$lld".
using Translator = std::string (*)(std::string_view english, std::optional<long long> count);

/// Installs the look-up; until then every text is shown in English. Called once, before any text is asked for, on
/// whichever thread.
void installTranslator(Translator translator);

std::string localized(std::string_view english);

/// Marks the English form of a text that is localised where it is shown, so that the tables can be checked for it.
constexpr std::string_view localizedLater(std::string_view english) {
    return english;
}

/// The plural form for `count` of a text with one "%lld" mark, filled in.
std::string localizedCount(std::string_view english, long long count);

/// Replaces the marks "%lld" (in order) and "%N$lld" (by position) of an already localised text by plain decimal
/// numbers without grouping. A mark without a value stays as it is.
std::string formatted(std::string_view text, std::initializer_list<long long> values);

/// The same for the marks "%@" and "%N$@" and texts.
std::string formatted(std::string_view text, std::initializer_list<std::string_view> values);

} // namespace vantrix
