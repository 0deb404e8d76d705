#include "linux/capture/tree_recorder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace vantrix {
namespace {

namespace fs = std::filesystem;

std::deque<std::string> componentsOf(std::string_view path) {
    std::deque<std::string> components;
    while (!path.empty()) {
        const std::size_t length = std::min(path.find('/'), path.size());
        if (length > 0 && path.substr(0, length) != ".")
            components.emplace_back(path.substr(0, length));
        path.remove_prefix(std::min(length + 1, path.size()));
    }
    return components;
}

bool isBelow(std::string_view path, std::string_view root) {
    return path.starts_with(root) && (path.size() == root.size() || path[root.size()] == '/');
}

std::string joined(const std::string& root, const std::vector<std::string>& components) {
    std::string path = root;
    for (const std::string& component : components)
        path.append("/").append(component);
    return path;
}

/// Whether a link in a folder that is so deep in its tree stays in that tree.
bool staysInside(const std::string& target, std::size_t depth) {
    if (target.empty() || target.front() == '/')
        return false;
    for (const std::string& component : componentsOf(target)) {
        if (component == ".." && depth-- == 0)
            return false;
        depth += component == ".." ? 0 : 1;
    }
    return true;
}

std::string targetOf(const std::string& link) {
    std::error_code error;
    return fs::read_symlink(link, error).string();
}

bool writeLines(const std::string& path, const std::set<std::string>& lines) {
    if (lines.empty())
        return true;
    std::ofstream file(path);
    for (const std::string& line : lines)
        file << line << '\n';
    return static_cast<bool>(file.flush());
}

} // namespace

std::string TreeRecorder::shown(const std::string& entry) {
    std::string name = redaction_.name(entry);
    if (name != entry)
        originals_[name] = entry;
    return name;
}

const std::string& TreeRecorder::placeOf(const std::string& path) {
    const std::string& root = isBelow(path, roots_.proc) ? roots_.proc : roots_.sys;
    if (!isBelow(path, root))
        return path;
    place_ = root;
    for (const std::string& component : componentsOf(std::string_view(path).substr(root.size()))) {
        const auto original = originals_.find(component);
        place_.append("/").append(original != originals_.end() ? original->second : redaction_.original(component));
    }
    return place_;
}

std::string TreeRecorder::keyOf(const std::string& tree, const std::vector<std::string>& components) {
    std::string key = tree;
    for (const std::string& component : components)
        key.append("/").append(shown(component));
    return key;
}

std::string TreeRecorder::shownTarget(const std::string& target) {
    std::string result = target.starts_with('/') ? "/" : "";
    for (const std::string& component : componentsOf(target))
        result.append(result.empty() || result == "/" ? "" : "/").append(shown(component));
    return result;
}

/// Goes along a path as the kernel does, and takes down the links on the way. Those of /proc lead to the reader's own
/// entries, whose numbers mean nothing elsewhere: there, every path stands for itself.
TreeRecorder::Place TreeRecorder::walk(const std::string& path, bool followsLast) {
    const bool isProc = isBelow(path, roots_.proc);
    const std::string& root = isProc ? roots_.proc : roots_.sys;
    if (!isBelow(path, root))
        return {};
    const std::string tree = isProc ? "proc" : "sys";
    auto rest = componentsOf(std::string_view(placeOf(path)).substr(root.size()));
    std::vector<std::string> walked;
    int links = 0;
    std::string location = root;
    struct stat status {};
    while (!rest.empty()) {
        const std::string component = std::move(rest.front());
        rest.pop_front();
        if (component == "..") {
            if (!walked.empty())
                walked.pop_back();
            continue;
        }
        walked.push_back(component);
        location = joined(root, walked);
        if (::lstat(location.c_str(), &status) != 0)
            return {keyOf(tree, walked), location, std::nullopt};
        const bool isLink = S_ISLNK(status.st_mode) && !isProc;
        const std::string target = isLink ? targetOf(location) : std::string();
        if (!isLink || !staysInside(target, walked.size() - 1))
            continue;
        put(keyOf(tree, walked), {Entry::Kind::link, shownTarget(target)});
        constexpr int mostLinks = 40; // as the kernel
        if ((rest.empty() && !followsLast) || ++links > mostLinks)
            return {keyOf(tree, walked), location, Entry::Kind::link};
        walked.pop_back();
        const auto onward = componentsOf(target);
        rest.insert(rest.begin(), onward.begin(), onward.end());
    }
    location = joined(root, walked);
    if (::stat(location.c_str(), &status) != 0)
        return {keyOf(tree, walked), location, std::nullopt};
    return {keyOf(tree, walked), location, S_ISDIR(status.st_mode) ? Entry::Kind::folder : Entry::Kind::file};
}

std::optional<std::string_view> TreeRecorder::read(const std::string& path, std::optional<std::string_view> text,
                                                   std::size_t limit) {
    const Place place = walk(path, true);
    if (place.key.empty())
        return text;
    const auto [entry, isFirst] = seen_.try_emplace(place.key);
    Seen& seen = entry->second;
    const bool isLonger = seen.isCut && text && seen.text && text->size() > seen.text->size();
    if (isFirst || isLonger) {
        seen.text = text ? std::optional(redaction_.text(*text, place.key)) : std::nullopt;
        seen.isCut = text && text->size() >= limit;
        if (seen.text)
            put(place.key, {Entry::Kind::file, *seen.text});
        else if (place.kind)
            put(place.key, {Entry::Kind::unreadable, {}});
        else
            lose(place.key);
    }
    return seen.text ? std::optional<std::string_view>(*seen.text) : std::nullopt;
}

void TreeRecorder::find(const std::string& path, std::uint64_t number) {
    const Place place = walk(path, true);
    if (place.key.empty())
        return;
    take(place);
    if (number == 0)
        return;
    auto& before = numbers_[place.key];
    if (before != 0 && before != number)
        renew(place.key);
    before = number;
}

/// Notes that something is there, or not; not what is in it.
void TreeRecorder::take(const Place& place) {
    if (!place.kind)
        return lose(place.key);
    const auto known = known_.find(place.key);
    const bool isFolder = place.kind == Entry::Kind::folder;
    if (known == known_.end() || (isFolder != (known->second.kind == Entry::Kind::folder)))
        put(place.key, {*place.kind, {}});
}

std::string TreeRecorder::resolve(const std::string& path) {
    const Place place = walk(path, true);
    if (place.key.empty())
        return path;
    take(place);
    if (!place.kind)
        return path;
    const bool isProc = place.key.starts_with("proc");
    return isProc ? roots_.proc + place.key.substr(4) : roots_.sys + place.key.substr(3);
}

std::string TreeRecorder::follow(const std::string& path, const std::string& target) {
    const Place place = walk(path, false);
    if (!place.key.empty() && place.kind != Entry::Kind::link)
        take(place);
    return shownTarget(target);
}

void TreeRecorder::list(const std::string& folder, std::string_view prefix, std::vector<std::string>& names) {
    const Place place = walk(folder, true);
    if (place.key.empty())
        return;
    take(place);
    std::set<std::string> listed;
    for (const std::string& name : names) {
        const std::string entry = shown(name);
        if (name == "." || name == ".." || !entry.starts_with(prefix))
            continue;
        listed.insert(entry);
        takeListed(place.key + '/' + entry, place.location + '/' + name);
    }
    names.assign(listed.begin(), listed.end());
    const std::string below = place.key + '/';
    std::vector<std::string> lost;
    for (auto entry = known_.lower_bound(below); entry != known_.end() && entry->first.starts_with(below); ++entry) {
        const auto name = entry->first.substr(below.size(), entry->first.find('/', below.size()) - below.size());
        if (name.starts_with(prefix) && !listed.contains(name))
            lost.push_back(below + name);
    }
    for (const std::string& key : lost)
        lose(key);
}

void TreeRecorder::takeListed(const std::string& key, const std::string& location) {
    struct stat status {};
    if (::lstat(location.c_str(), &status) != 0)
        return;
    const std::string target = S_ISLNK(status.st_mode) && key.starts_with("sys/") ? targetOf(location) : std::string();
    const auto depth = static_cast<std::size_t>(std::count(key.begin(), key.end(), '/')) - 1;
    if (staysInside(target, depth))
        put(key, {Entry::Kind::link, shownTarget(target)});
    else if (::stat(location.c_str(), &status) == 0)
        take({key, location, S_ISDIR(status.st_mode) ? Entry::Kind::folder : Entry::Kind::file});
}

void TreeRecorder::put(const std::string& key, Entry entry) {
    const auto [known, isNew] = known_.try_emplace(key);
    if (!isNew && known->second == entry)
        return;
    known->second = std::move(entry);
    changed_.insert(key);
}

/// It is not there, nor is anything below.
void TreeRecorder::lose(const std::string& key) {
    for (auto entry = known_.lower_bound(key); entry != known_.end() && entry->first.starts_with(key);) {
        if (!isBelow(entry->first, key)) {
            ++entry;
            continue;
        }
        changed_.erase(entry->first);
        entry = known_.erase(entry);
        absent_.insert(key);
    }
}

/// Another device has taken the place: it is laid down as one that goes and one that comes.
void TreeRecorder::renew(const std::string& key) {
    absent_.insert(key);
    for (const auto& [place, entry] : known_)
        if (isBelow(place, key))
            changed_.insert(place);
}

bool TreeRecorder::isEmptyFolder(const std::string& key) const {
    const auto next = known_.lower_bound(key + '/');
    return known_.at(key).kind == Entry::Kind::folder && (next == known_.end() || !isBelow(next->first, key));
}

bool TreeRecorder::write(const std::string& folder, const std::string& key) const {
    const fs::path path = folder + '/' + key;
    const Entry& entry = known_.at(key);
    std::error_code error;
    fs::create_directories(entry.kind == Entry::Kind::folder ? path : path.parent_path(), error);
    if (entry.kind == Entry::Kind::link)
        fs::create_symlink(entry.text, path, error);
    if (entry.kind != Entry::Kind::file)
        return !error;
    std::ofstream file(path, std::ios::binary);
    file << entry.text;
    return static_cast<bool>(file.flush());
}

bool TreeRecorder::layDown(const std::string& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    std::set<std::string> folders;
    std::set<std::string> unreadable;
    for (const std::string& key : changed_) {
        if (!write(folder, key))
            return false;
        if (known_.at(key).kind == Entry::Kind::unreadable)
            unreadable.insert(key);
        else if (isEmptyFolder(key)) // many ways to send a capture leave them out
            folders.insert(key);
    }
    changed_.clear();
    return !error && writeLines(folder + "/absent", std::exchange(absent_, {})) &&
           writeLines(folder + "/folders", folders) && writeLines(folder + "/unreadable", unreadable);
}

} // namespace vantrix
