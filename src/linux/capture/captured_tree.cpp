#include "linux/capture/captured_tree.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

namespace vantrix {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> linesOf(const std::string& path) {
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::string folderInMemory() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    for (const std::string folder : {runtime != nullptr ? runtime : "", "/dev/shm"}) {
        std::string path = folder + "/vantrix-XXXXXX"; // the letters that mkdtemp replaces
        if (!folder.empty() && mkdtemp(path.data()) != nullptr)
            return path;
    }
    std::error_code error;
    std::string path = fs::temp_directory_path(error) / "vantrix-XXXXXX";
    return mkdtemp(path.data()) != nullptr ? path : std::string();
}

/// In the order of their names, so that folders are laid alike everywhere.
std::vector<std::string> entriesBelow(const std::string& layer) {
    std::vector<std::string> entries;
    std::error_code error;
    for (const char* tree : {"proc", "sys"})
        for (fs::recursive_directory_iterator entry(layer + '/' + tree, error), end; !error && entry != end;
             entry.increment(error))
            entries.push_back(entry->path().lexically_relative(layer));
    std::sort(entries.begin(), entries.end());
    return entries;
}

/// Whatever is there of another kind goes.
bool makeFolder(const std::string& path) {
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(path, error)))
        fs::remove(path, error);
    fs::create_directories(path, error);
    return !error;
}

} // namespace

CapturedTree::CapturedTree() : path_(folderInMemory()) {
    if (!path_.empty()) // of another's name while it is read: the trees are looked for through it
        path_ = fs::canonical(path_);
    for (const char* tree : {"proc", "sys"})
        makeFolder(path(tree));
}

CapturedTree::~CapturedTree() {
    std::error_code error;
    if (!path_.empty())
        fs::remove_all(path_, error);
}

/// Whether an entry may be changed: a capture that somebody sent must not lead out of its folder.
bool CapturedTree::isInside(const std::string& entry) const {
    std::error_code error;
    const bool isTree = entry == "proc" || entry == "sys" || entry.starts_with("proc/") || entry.starts_with("sys/");
    const fs::path folder = fs::weakly_canonical(fs::path(path(entry)).parent_path(), error);
    return !path_.empty() && isTree && !error && (folder.string() + '/').starts_with(path_ + '/') &&
           fs::path(entry).filename() != "..";
}

bool CapturedTree::lay(const std::string& layer) const {
    bool isWhole = !path_.empty();
    const auto each = [&](const char* list, const std::function<bool(const std::string&)>& change) {
        for (const std::string& line : linesOf(layer + '/' + list))
            isWhole = change(line) && isWhole;
    };
    each("bases", [&](const auto& base) { return lay(fs::path(layer).parent_path() / base); });
    each("absent", [&](const auto& entry) {
        std::error_code error;
        if (isInside(entry))
            fs::remove_all(path(entry), error);
        return isInside(entry) && !error;
    });
    for (const char* list : {"folders", "unreadable"}) // a folder that is read like a file fails, whoever reads it
        each(list, [&](const auto& entry) { return isInside(entry) && makeFolder(path(entry)); });
    for (const std::string& entry : entriesBelow(layer))
        isWhole = layEntry(layer, entry) && isWhole;
    return isWhole;
}

bool CapturedTree::layEntry(const std::string& layer, const std::string& entry) const {
    const fs::path from = layer + '/' + entry;
    const std::string to = path(entry);
    std::error_code error;
    const auto kind = fs::symlink_status(from, error).type();
    if (!isInside(entry))
        return false;
    if (kind == fs::file_type::directory)
        return fs::is_directory(to, error) || makeFolder(to);
    const auto before = fs::symlink_status(to, error).type();
    if (kind == fs::file_type::symlink) {
        const fs::path target = fs::read_symlink(from, error);
        if (before != fs::file_type::not_found)
            fs::remove_all(to, error);
        fs::create_symlink(target, to, error);
        const fs::path end = fs::weakly_canonical(to, error);
        if (!error && end.string().starts_with(path_ + '/'))
            return true;
        fs::remove(to, error);
        return false;
    }
    if (kind != fs::file_type::regular)
        return false;
    if (before != fs::file_type::regular && before != fs::file_type::not_found)
        fs::remove_all(to, error);
    fs::create_directories(fs::path(to).parent_path(), error);
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, error);
    return !error;
}

} // namespace vantrix
