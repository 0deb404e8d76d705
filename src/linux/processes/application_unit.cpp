#include "linux/processes/application_unit.h"

#include "linux/kernel/text_scan.h"
#include "support/integer.h"

namespace vantrix {
namespace {

constexpr std::string_view prefix = "app-";
constexpr std::string_view scope = ".scope";
constexpr std::string_view service = ".service";

bool isApplication(std::string_view unit) {
    return unit.starts_with(prefix) && (unit.ends_with(scope) || unit.ends_with(service));
}

/// "\x2d" as "-".
std::string unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const auto code = text.starts_with("\\x") ? parseInteger<unsigned>(text.substr(2, 2), {}, 16) : std::nullopt;
        plain += code && text.size() >= 4 ? static_cast<char>(*code) : text.front();
        text.remove_prefix(code && text.size() >= 4 ? 4 : 1);
    }
    return plain;
}

} // namespace

std::string_view controlGroup(std::string_view text) {
    constexpr std::string_view unified = "0::";
    constexpr std::string_view systemd = ":name=systemd:";
    std::string_view found;
    while (const auto line = takeLine(text)) {
        const auto named = line->find(systemd);
        const auto path = line->starts_with(unified)        ? line->substr(unified.size())
                          : named != std::string_view::npos ? line->substr(named + systemd.size())
                                                            : std::string_view();
        if (path.size() > found.size()) // the tree that is not in use has everything at its root
            found = path;
    }
    return found;
}

std::string_view applicationGroup(std::string_view path) {
    for (auto slash = path.rfind('/'); slash != std::string_view::npos; slash = path.rfind('/')) {
        if (isApplication(path.substr(slash + 1)))
            return path;
        path = path.substr(0, slash);
    }
    return {};
}

std::vector<std::string> entryNames(std::string_view group) {
    std::string_view unit = group.substr(group.rfind('/') + 1);
    if (unit.ends_with(scope)) {
        unit.remove_suffix(scope.size());
        if (const auto dash = unit.rfind('-'); dash >= prefix.size())
            unit = unit.substr(0, dash);
    } else {
        unit = unit.substr(0, unit.size() - service.size());
        unit = unit.substr(0, unit.find('@'));
    }
    unit.remove_prefix(prefix.size());
    std::vector<std::string> names{unescaped(unit)};
    for (auto dash = unit.find('-'); dash != std::string_view::npos; dash = unit.find('-')) {
        unit.remove_prefix(dash + 1);
        names.push_back(unescaped(unit));
    }
    return names;
}

bool isOfLogin(std::string_view path) {
    return path.find("/session-") != std::string_view::npos || path.find("/user@") != std::string_view::npos;
}

} // namespace vantrix
