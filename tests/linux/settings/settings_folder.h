#pragma once

#include <cstdio>

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "posix/spin_until.h"

/// What the tests of files in folders share.
namespace vantrix::settings_folder {

inline QString text(const char* value) {
    return QString::fromUtf8(value);
}

inline const QString key = QStringLiteral("key");
inline const QString other = QStringLiteral("other");

/// Writes the file in place, as most editors do not.
inline void put(const QString& path, const QByteArray& contents) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
    file.write(contents);
}

inline QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("<cannot be opened>");
}

/// Replaces `to`.
inline void rename(const QString& from, const QString& to) {
    ASSERT_EQ(std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()), 0);
}

inline mode_t modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

inline void setMode(const QString& path, mode_t mode) {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

inline QJsonObject parsed(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}

inline QStringList names(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

struct FileDefaultsStoreTest : testing::Test {
    QString at(const char* name) const { return folder_.filePath(text(name)); }

    void write(const QByteArray& bytes) const { put(path_, bytes); }
    QJsonObject object() const { return parsed(read(path_)); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("settings.json"));
};

} // namespace vantrix::settings_folder
