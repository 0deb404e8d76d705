#pragma once

#include <cstdint>
#include <optional>

#include <sys/types.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace vantrix {

/// Identifies one version of one file: any edit, replacement or change of its permissions makes another.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;          ///< bytes
    std::int64_t contentsTime = 0;  ///< nanoseconds since 1970
    std::int64_t attributeTime = 0; ///< nanoseconds since 1970; the only trace of a changed permission

    bool operator==(const FileStamp&) const = default;
};

/// Absent when nothing can be found at `path`.
std::optional<FileStamp> stampOf(const QString& path);

/// What a settings file held when it was read.
struct SettingsFile {
    enum class State {
        missing,
        good,
        damaged, ///< a file without readable settings; may be replaced once it was set aside
        blocked, ///< no regular file, or out of reach; must be left alone
    };

    /// A larger file is no settings file.
    static constexpr qsizetype sizeLimit = 1 << 20;

    State state = State::missing;
    std::optional<FileStamp> stamp;
    mode_t mode = 0600;       ///< permissions for its replacement
    QJsonObject values;       ///< empty unless good
    const char* problem = ""; ///< what is wrong when damaged or blocked, to follow the file's name
};

/// Reads the file without ever waiting for another process, whatever stands at `path`.
SettingsFile readSettingsFile(const QString& path);

/// `path`, or the file it points to when it is a symbolic link, whether that file exists or not.
QString linkTarget(const QString& path);

/// How a file is to be replaced.
struct Replacement {
    mode_t mode = 0600;
    bool keepsOld = false; ///< the old file is kept beside the new one, as "<name>.damaged"
};

/// Outcome of a replacement.
struct Replaced {
    std::optional<FileStamp> stamp; ///< of the new file; absent when the old one still stands
    int error = 0;                  ///< errno when it failed
};

/// Replaces the file's contents in one step: readers see the old or the new, never a mixture, and so does the next
/// start after a crash or a power cut.
/// Only a regular file is ever replaced: as root, a link to a device would cost the system that device.
Replaced replaceFile(const QString& path, const QByteArray& contents, const Replacement& how);

} // namespace vantrix
