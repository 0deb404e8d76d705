#include "linux/settings/file_writing.h"

#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrix {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t letters = 6; // that mkstemp replaces

} // namespace

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool makePrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    return ::mkdir(folder.c_str(), 0700) == 0;
}

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds patience)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    const auto isHeld = [this] {
        return folder_ && ::flock(folder_.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    };
    const auto end = std::chrono::steady_clock::now() + patience;
    while ((isBusy_ = isHeld()) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(5ms);
}

void removeStrays(const std::filesystem::path& path) {
    namespace fs = std::filesystem;
    constexpr auto longestWrite = 1min;
    const std::string beginning = '.' + path.filename().string() + '.';
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(path.parent_path(), error)) {
        const std::string name = entry.path().filename().string();
        if (name.size() == beginning.size() + letters && name.starts_with(beginning) && entry.is_regular_file(error) &&
            fs::file_time_type::clock::now() - entry.last_write_time(error) > longestWrite)
            fs::remove(entry.path(), error);
    }
}

std::string hiddenPattern(std::string_view path) {
    const auto base = path.rfind('/') + 1;
    std::string pattern(path.substr(0, base));
    pattern.append(".").append(path.substr(base)).append(".");
    return pattern.append(letters, 'X');
}

} // namespace vantrix
