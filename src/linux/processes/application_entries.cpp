#include "linux/processes/application_entries.h"

#include <algorithm>
#include <cstdlib>

#include "linux/kernel/kernel_tree.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

constexpr std::size_t longestEntry = 256 << 10; // with a name in every language
constexpr std::size_t longestName = 120;

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::vector<std::string> parts(const std::string& list) {
    std::vector<std::string> found;
    for (std::size_t begin = 0; begin <= list.size();) {
        const auto end = std::min(list.find(':', begin), list.size());
        if (end > begin)
            found.push_back(list.substr(begin, end - begin));
        begin = end + 1;
    }
    return found;
}

/// The keys of the main group, one after the other.
template<typename Take>
void readKeys(std::string_view text, Take take) {
    bool isMain = false;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.starts_with('['))
            isMain = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isMain || equals == std::string_view::npos)
            continue;
        auto key = line.substr(0, equals);
        auto value = line.substr(equals + 1);
        while (key.ends_with(' '))
            key.remove_suffix(1);
        while (value.starts_with(' '))
            value.remove_prefix(1);
        take(key, value);
    }
}

/// How early `key` stands in the list of "Name[de_DE]", "Name[de]" and "Name".
std::size_t rankOf(std::string_view key, const std::vector<std::string>& languages) {
    for (std::size_t i = 0; i < languages.size(); ++i)
        if (key == "Name[" + languages[i] + ']')
            return i;
    return languages.size();
}

} // namespace

std::optional<ProcessSampler::Application> ApplicationEntries::find(std::string_view name) const {
    const std::string file = std::string(name) + ".desktop";
    if (!isEntryName(file))
        return std::nullopt;
    for (const std::string& folder : folders_) {
        const auto text = readStart(pathBelow(folder, file), longestEntry);
        if (!text)
            continue;
        ProcessSampler::Application application;
        std::size_t rank = languages_.size() + 1;
        bool isApplication = false;
        readKeys(*text, [&](std::string_view key, std::string_view value) {
            if (key == "Type")
                isApplication = value == "Application";
            else if (key == "Icon")
                application.icon = value;
            else if (key.starts_with("Name") && (key == "Name" || rankOf(key, languages_) < languages_.size()) &&
                     rankOf(key, languages_) < rank) {
                rank = rankOf(key, languages_);
                application.name = plainName(value);
            }
        });
        if (isApplication && !application.name.empty())
            return application;
    }
    return std::nullopt;
}

std::vector<std::string> applicationFolders() {
    const std::string home = variable("XDG_DATA_HOME");
    const std::string all = variable("XDG_DATA_DIRS");
    std::vector<std::string> folders{home.starts_with('/') ? home : variable("HOME") + "/.local/share"};
    for (const std::string& folder : parts(all.empty() ? "/usr/local/share:/usr/share" : all))
        if (folder.starts_with('/'))
            folders.push_back(folder);
    for (std::string& folder : folders)
        folder += "/applications";
    return folders;
}

std::vector<std::string> wantedLanguages() {
    std::string wanted = variable("LANGUAGE");
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (wanted.empty())
            wanted = variable(name);
    std::vector<std::string> languages;
    for (const std::string& locale : parts(wanted)) {
        languages.push_back(locale.substr(0, locale.find_first_of(".@")));
        if (const auto country = languages.back().find('_'); country != std::string::npos)
            languages.push_back(languages.back().substr(0, country));
    }
    return languages;
}

std::string plainName(std::string_view name) {
    std::string plain = withoutTerminalControls(name.substr(0, longestName));
    std::replace(plain.begin(), plain.end(), '\n', ' ');
    return plain.find_first_not_of(' ') == std::string::npos ? "?" : plain;
}

} // namespace vantrix
