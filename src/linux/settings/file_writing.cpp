#include "linux/settings/file_writing.h"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace vantrix {

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

std::string hiddenPattern(std::string_view path) {
    const auto base = path.rfind('/') + 1;
    std::string pattern(path.substr(0, base));
    pattern.append(".").append(path.substr(base)).append(".");
    return pattern.append(6, 'X'); // the letters that mkstemp replaces
}

} // namespace vantrix
