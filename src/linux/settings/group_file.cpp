#include "linux/settings/group_file.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linux/settings/file_writing.h"

namespace vantrix {
namespace {

/// Puts the new file where the old one is. Exchanging the two and removing the old one afterwards is as atomic as
/// replacing it, but replacing makes common file systems write the new one to the disk at once.
bool install(const std::string& temporary, const std::string& path) {
    const auto exchange = [&] {
        return ::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, path.c_str(), RENAME_EXCHANGE) == 0;
    };
    if (!exchange())
        return ::rename(temporary.c_str(), path.c_str()) == 0;
    if (::unlink(temporary.c_str()) == 0)
        return true;
    exchange(); // it was no file
    return false;
}

/// False when the file stayed as it was; errno says why.
bool replace(const std::string& path, std::string_view contents) {
    std::string temporary = hiddenPattern(path);
    const int file = ::mkostemp(temporary.data(), O_CLOEXEC); // 0600
    if (file < 0)
        return false;
    const bool isComplete = writeAll(file, contents);
    if (::close(file) == 0 && isComplete && install(temporary, path))
        return true;
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
}

} // namespace

bool writeGroupFile(const std::string& path, std::string_view key, std::string_view json) {
    std::string contents("{\"");
    contents.append(key).append("\":").append(json).append("}\n");
    if (replace(path, contents))
        return true;
    return errno == ENOENT && makePrivateFolder(std::filesystem::path(path).parent_path()) && replace(path, contents);
}

} // namespace vantrix
