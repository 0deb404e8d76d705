#include "linux/settings/settings_file.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include "linux/settings/file_writing.h"
#include "posix/plain_file.h"

namespace vantrix {

namespace {

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

/// The stamp of what is read or written just now. Another edit within the same step of the file system's clock would
/// not show in it: a file that is so young gets one that no file has, and is read again when it is next looked at.
FileStamp stampToKeep(const struct stat& status) {
    constexpr std::int64_t longestStep = 20'000'000; // the kernel's clock makes 100 steps a second or more
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    FileStamp stamp = stampOf(status);
    if (nanoseconds(now) - stamp.attributeTime < longestStep)
        stamp.attributeTime = -1;
    return stamp;
}

SettingsFile failed(SettingsFile file, SettingsFile::State state, const char* problem) {
    file.state = state;
    file.problem = problem;
    return file;
}

/// Fills in what the bytes of a regular file say.
SettingsFile parsed(SettingsFile file, const std::optional<std::string>& bytes) {
    using State = SettingsFile::State;
    if (!bytes)
        return failed(std::move(file), State::damaged, "cannot be read");
    if (bytes->size() > std::size_t{SettingsFile::sizeLimit})
        return failed(std::move(file), State::damaged, "is too large for a settings file");
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(*bytes), &error);
    if (error.error != QJsonParseError::NoError)
        return failed(std::move(file), State::damaged, "is not valid JSON");
    if (!document.isObject())
        return failed(std::move(file), State::damaged, "is not a JSON object");
    file.state = State::good;
    file.values = document.object();
    return file;
}

/// Renames the file to the first free "<name>.damaged", "<name>.damaged-2", and so on.
bool setAside(const QByteArray& path) {
    constexpr int attempts = 1000;
    for (int number = 1; number <= attempts; ++number) {
        QByteArray copy = path + ".damaged";
        if (number > 1)
            copy += '-' + QByteArray::number(number);
        struct stat status {};
        // Checked first, because not every file system can rename without replacing.
        if (::lstat(copy.constData(), &status) == 0)
            continue;
        return errno == ENOENT && ::rename(path.constData(), copy.constData()) == 0;
    }
    errno = EEXIST;
    return false;
}

/// False for a device, a folder and anything else that a settings file must never replace.
bool replaceable(const QByteArray& path) {
    struct stat status {};
    if (::lstat(path.constData(), &status) != 0)
        return errno == ENOENT;
    errno = EEXIST;
    return S_ISREG(status.st_mode);
}

/// Puts the complete new file where the old one is.
bool install(const FileDescriptor& file, const QByteArray& temporary, const QByteArray& path,
             const QByteArray& contents, const Replacement& how) {
    if (::fchmod(file.get(), how.mode) != 0 ||
        !writeAll(file.get(), std::string_view(contents.constData(), static_cast<std::size_t>(contents.size()))))
        return false;
    if (::fsync(file.get()) != 0 || !replaceable(path))
        return false;
    // Last, so that a full disk leaves the old file where it is.
    if (how.keepsOld && !setAside(path))
        return false;
    return ::rename(temporary.constData(), path.constData()) == 0;
}

} // namespace

std::optional<FileStamp> stampOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return stampOf(status);
}

SettingsFile readSettingsFile(const QString& path) {
    using State = SettingsFile::State;
    const QByteArray name = QFile::encodeName(path);
    SettingsFile result;
    struct stat status {};
    if (::stat(name.constData(), &status) != 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return result;
        return failed(std::move(result), State::blocked, "cannot be reached");
    }
    result.stamp = stampOf(status);
    if (!S_ISREG(status.st_mode))
        return failed(std::move(result), State::blocked, "is not a regular file");
    result.mode = (status.st_mode & 0777) | 0600;

    const FileDescriptor file = openPlainFile(name.toStdString(), O_RDONLY);
    if (!file || ::fstat(file.get(), &status) != 0)
        return failed(std::move(result), State::damaged, "cannot be read");
    // Taken from the open file before reading it, so that an edit made meanwhile is seen as a change.
    result.stamp = stampToKeep(status);
    return parsed(std::move(result), readUpTo(SettingsFile::sizeLimit + 1, file));
}

QString linkTarget(const QString& path) {
    constexpr int longestChain = 40;
    QFileInfo file(path);
    for (int links = 0; links < longestChain && file.isSymLink(); ++links)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

Replaced replaceFile(const QString& path, const QByteArray& contents, const Replacement& how) {
    const QByteArray name = QFile::encodeName(path);
    QByteArray temporary = QByteArray::fromStdString(hiddenPattern(name.toStdString()));
    const FileDescriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file)
        return {std::nullopt, errno};
    if (!install(file, temporary, name, contents, how)) {
        const int error = errno;
        ::unlink(temporary.constData());
        return {std::nullopt, error};
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0)
        return {FileStamp(), 0};
    return {stampToKeep(status), 0};
}

} // namespace vantrix
