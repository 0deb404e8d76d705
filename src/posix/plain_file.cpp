#include "posix/plain_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/desktop_services.h"

namespace vantrix {
namespace {

bool isPlain(const struct stat& status) {
    return S_ISREG(status.st_mode);
}

} // namespace

FileDescriptor openPlainFile(const std::string& path, int flags) {
    struct stat status {};
    // Looked at before opening, too: to open a device may have effects.
    if (::stat(path.c_str(), &status) == 0 && !isPlain(status))
        return FileDescriptor();
    FileDescriptor file(::open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0600));
    return file && ::fstat(file.get(), &status) == 0 && isPlain(status) ? std::move(file) : FileDescriptor();
}

std::optional<std::string> readUpTo(std::size_t mostBytes, const FileDescriptor& file) {
    std::string text(mostBytes, '\0');
    std::size_t filled = 0;
    while (filled < mostBytes) {
        const ssize_t count = ::read(file.get(), text.data() + filled, mostBytes - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    text.resize(filled);
    return text;
}

std::optional<std::string> readPlainFile(const std::string& path, std::size_t mostBytes) {
    const FileDescriptor file = openPlainFile(path, O_RDONLY);
    return file ? readUpTo(mostBytes, file) : std::nullopt;
}

bool writePlainFile(const std::string& path, std::string_view text, bool appends) {
    const FileDescriptor file = openPlainFile(path, O_WRONLY | O_CREAT | O_NOFOLLOW | (appends ? O_APPEND : O_TRUNC));
    return file && ::write(file.get(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

} // namespace vantrix
