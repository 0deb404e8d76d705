#include "linux/settings/group_file.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linux/settings/file_writing.h"

namespace vantrix {
namespace {

constexpr std::size_t sizeStep = 256; // sizes are rounded up to it, so that files are rarely cut or extended

bool exchangeNames(const std::string& one, const std::string& other) {
    return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
}

/// `name` still leads to the file, which others may have moved or removed.
bool leadsTo(const std::string& name, int file, off_t& size) {
    struct stat found {};
    struct stat own {};
    if (::lstat(name.c_str(), &found) != 0 || ::fstat(file, &own) != 0)
        return false;
    size = own.st_size;
    return found.st_ino == own.st_ino && found.st_dev == own.st_dev;
}

/// Somebody who opened the file while it stood at the path has not closed it yet. The kernel lets a file that others
/// hold open have no write lease; where it knows no leases, one cannot tell.
bool mayBeRead(int file) {
    if (::fcntl(file, F_SETLEASE, F_WRLCK) != 0)
        return true;
    ::fcntl(file, F_SETLEASE, F_UNLCK);
    return false;
}

FileDescriptor makePrivateFile(std::string& pattern) {
    FileDescriptor file(::mkostemp(pattern.data(), O_CLOEXEC)); // 0600
    if (file)
        ::fcntl(file.get(), F_SETSIG, SIGURG); // whoever opens a leased file has it sent, and the usual signal kills
    return file;
}

} // namespace

GroupFile::GroupFile(std::string path) : path_(std::move(path)) {
    removeStrays(path_);
}

GroupFile::~GroupFile() {
    forgetSpare();
}

bool GroupFile::write(std::string_view key, std::string_view json) {
    contents_.assign("{\"").append(key).append("\":").append(json).push_back('}');
    contents_.resize((contents_.size() / sizeStep + 1) * sizeStep, ' ');
    contents_.back() = '\n';
    if (writeAside() || replace())
        return true;
    return errno == ENOENT && makePrivateFolder(std::filesystem::path(path_).parent_path()) && replace();
}

bool GroupFile::writeAside() {
    off_t size = 0;
    if (spareName_.empty() || !leadsTo(spareName_, spare_.get(), size) || mayBeRead(spare_.get()))
        return false;
    const auto written = ::pwrite(spare_.get(), contents_.data(), contents_.size(), 0);
    if (written != static_cast<ssize_t>(contents_.size()))
        return false;
    if (size > written && ::ftruncate(spare_.get(), written) != 0)
        return false;
    if (!exchangeNames(spareName_, path_))
        return false;
    std::swap(shown_, spare_);
    return true;
}

/// By a new file. False when what was there stayed as it was; errno says why.
bool GroupFile::replace() {
    forgetSpare();
    std::string temporary = hiddenPattern(path_);
    FileDescriptor file = makePrivateFile(temporary);
    if (!file)
        return false;
    const bool isComplete = writeAll(file.get(), contents_);
    if (isComplete && install(temporary, std::move(file)))
        return true;
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
}

/// Exchanging the names is as atomic as replacing the old file, which makes common file systems write the new one to
/// the disk at once.
bool GroupFile::install(std::string temporary, FileDescriptor file) {
    const bool isExchanged = exchangeNames(temporary, path_);
    if (!isExchanged && ::rename(temporary.c_str(), path_.c_str()) != 0)
        return false;
    std::swap(shown_, file); // the latter is what was shown before
    if (!isExchanged)
        return true;
    off_t size = 0;
    if (file && leadsTo(temporary, file.get(), size)) {
        spare_ = std::move(file);
        spareName_ = std::move(temporary);
        return true;
    }
    if (::unlink(temporary.c_str()) == 0)
        return true;
    exchangeNames(temporary, path_); // it was no file
    shown_.close();
    return false;
}

void GroupFile::forgetSpare() {
    const bool isStuck = !spareName_.empty() && ::unlink(spareName_.c_str()) != 0 && errno == EISDIR;
    if (isStuck && exchangeNames(spareName_, path_)) // somebody's folder goes back to where it was put
        ::unlink(spareName_.c_str());
    spareName_.clear();
    spare_.close();
}

} // namespace vantrix
