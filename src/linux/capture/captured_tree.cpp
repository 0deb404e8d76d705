#include "linux/capture/captured_tree.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
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

/// What a machine is laid into.
class Ground {
  public:
    explicit Ground(const std::string& folder) {
        std::error_code error;
        folder_ = fs::weakly_canonical(folder, error).string();
    }

    bool remove(const std::string& entry) const {
        std::error_code error;
        if (mayChange(entry))
            fs::remove_all(path(entry), error);
        return mayChange(entry) && !error;
    }
    bool addFolder(const std::string& entry) const { return mayChange(entry) && makeFolder(path(entry)); }
    bool add(const std::string& layer, const std::string& entry) const;

  private:
    std::string path(const std::string& entry) const { return folder_ + '/' + entry; }
    bool isInside(const fs::path& path) const {
        std::error_code error;
        const std::string end = fs::weakly_canonical(path, error).string();
        return !error && (end + '/').starts_with(folder_ + '/');
    }
    /// A capture that somebody sent must not lead out of its folder.
    bool mayChange(const std::string& entry) const {
        const std::string tree = entry.substr(0, entry.find('/'));
        const bool isTree = tree == "proc" || tree == "sys";
        return isTree && fs::path(entry).filename() != ".." && isInside(fs::path(path(entry)).parent_path());
    }
    bool addLink(const fs::path& from, const std::string& to) const;

    std::string folder_;
};

bool Ground::addLink(const fs::path& from, const std::string& to) const {
    std::error_code error;
    const fs::path target = fs::read_symlink(from, error);
    fs::remove_all(to, error);
    fs::create_symlink(target, to, error);
    if (!error && isInside(to))
        return true;
    fs::remove(to, error);
    return false;
}

bool Ground::add(const std::string& layer, const std::string& entry) const {
    const fs::path from = layer + '/' + entry;
    const std::string to = path(entry);
    std::error_code error;
    const auto kind = fs::symlink_status(from, error).type();
    if (!mayChange(entry))
        return false;
    if (kind == fs::file_type::directory)
        return fs::is_directory(to, error) || makeFolder(to);
    fs::create_directories(fs::path(to).parent_path(), error);
    if (kind == fs::file_type::symlink)
        return addLink(from, to);
    const auto before = fs::symlink_status(to, error).type();
    if (before != fs::file_type::regular && before != fs::file_type::not_found)
        fs::remove_all(to, error);
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error); // fails for what is no plain file
    if (!error)
        fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, error);
    return !error;
}

} // namespace

bool layOver(const std::string& folder, const std::string& layer) {
    const Ground ground(folder);
    bool isWhole = true;
    for (const std::string& base : linesOf(layer + "/bases"))
        isWhole = layOver(folder, fs::path(layer).parent_path() / base) && isWhole;
    for (const std::string& entry : linesOf(layer + "/absent"))
        isWhole = ground.remove(entry) && isWhole;
    for (const char* list : {"/folders", "/unreadable"}) // a folder that is read like a file fails, whoever reads it
        for (const std::string& entry : linesOf(layer + list))
            isWhole = ground.addFolder(entry) && isWhole;
    for (const std::string& entry : entriesBelow(layer))
        isWhole = ground.add(layer, entry) && isWhole;
    return isWhole;
}

CapturedTree::CapturedTree() : path_(folderInMemory()) {
    for (const std::string& tree : {roots().proc, roots().sys})
        if (!path_.empty())
            makeFolder(tree);
}

CapturedTree::~CapturedTree() {
    std::error_code error;
    if (!path_.empty())
        fs::remove_all(path_, error);
}

} // namespace vantrix
