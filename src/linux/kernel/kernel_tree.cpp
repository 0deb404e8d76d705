#include "linux/kernel/kernel_tree.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "linux/kernel/reading_manner.h"
#include "platform/sampling_sources.h"
#include "posix/file_descriptor.h"

namespace vantrix {
namespace {

std::optional<std::string> readText(const std::string& path, std::size_t limit) {
    const FileDescriptor file(::open(placeOf(path).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!file)
        return std::nullopt;
    std::string text(limit, '\0');
    std::size_t size = 0;
    while (size < limit) {
        const ssize_t length = pread(file.get(), text.data() + size, limit - size, static_cast<off_t>(size));
        if (length < 0 && errno == EINTR)
            continue;
        if (length < 0)
            return std::nullopt;
        if (length == 0)
            break;
        size += static_cast<std::size_t>(length);
    }
    text.resize(size);
    return text;
}

} // namespace

std::optional<std::string> readStart(const std::string& path, std::size_t limit) {
    auto text = readText(path, limit);
    if (readingManner.watch == nullptr)
        return text;
    const auto shown = readingManner.watch->read(path, text, limit);
    return shown ? std::optional(std::string(shown->substr(0, limit))) : std::nullopt;
}

const std::string& placeOf(const std::string& path) {
    return readingManner.watch != nullptr ? readingManner.watch->placeOf(path) : path;
}

std::string pathBelow(const std::string& folder, std::string_view entry) {
    std::string path = folder;
    path += '/';
    path += entry;
    return path;
}

bool pathExists(const std::string& path) {
    if (readingManner.watch != nullptr)
        readingManner.watch->find(path, 0);
    return access(placeOf(path).c_str(), F_OK) == 0;
}

std::uint64_t entryNumber(const std::string& path) {
    struct stat status {};
    const std::uint64_t number = stat(placeOf(path).c_str(), &status) == 0 ? status.st_ino : 0;
    if (readingManner.watch != nullptr)
        readingManner.watch->find(path, number);
    return number;
}

std::string linkTarget(const std::string& path) {
    std::string target(4096, '\0');
    const ssize_t length = readlink(placeOf(path).c_str(), target.data(), target.size());
    target.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return readingManner.watch != nullptr ? readingManner.watch->follow(path, target) : target;
}

std::string resolvedPath(const std::string& path) {
    if (readingManner.watch != nullptr)
        return readingManner.watch->resolve(path);
    std::error_code error;
    const auto resolved = std::filesystem::canonical(path, error);
    return error ? path : resolved.string();
}

bool isEntryName(std::string_view name) {
    return !name.empty() && name.size() < 256 && name != "." && name != ".." &&
           name.find('/') == std::string_view::npos && name.find('\0') == std::string_view::npos;
}

std::vector<std::string> entriesStartingWith(const std::string& folder, std::string_view prefix) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(placeOf(folder).c_str()), closedir);
    const bool isWatched = readingManner.watch != nullptr; // what is shown may begin otherwise
    while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
        if (isWatched || std::string_view(entry->d_name).starts_with(prefix))
            names.emplace_back(entry->d_name);
    }
    if (isWatched)
        readingManner.watch->list(folder, prefix, names);
    if (readingManner.isRepeatable)
        std::sort(names.begin(), names.end());
    return names;
}

std::string netFolder(const KernelRoots& roots) {
    std::string foreign = roots.proc + "/1/net";
    return roots != KernelRoots() && pathExists(foreign + "/dev") ? foreign : roots.proc + "/net";
}

std::optional<std::string> unreadableRoot(const KernelRoots& roots) {
    for (const std::string& root : {roots.proc, roots.sys}) {
        const std::string inside = root + "/."; // of folders alone
        if (access(inside.c_str(), R_OK | X_OK) != 0)
            return root;
    }
    return std::nullopt;
}

} // namespace vantrix
