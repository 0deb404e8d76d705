#pragma once

#include <cstdio>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// What the tests of the settings file share.
namespace vantrix::settings_folder {

inline QString text(const char* value) {
    return QString::fromUtf8(value);
}

inline const QString key = QStringLiteral("key");
inline const QString other = QStringLiteral("other");

/// Handles events until the condition holds; false when it does not within the time.
template<typename Condition>
bool becomes(Condition condition, int milliseconds = 5000) {
    QDeadlineTimer deadline(milliseconds);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    return condition();
}

/// Writes the file in place, as most editors do not.
inline void put(const QString& path, const QByteArray& contents) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
    file.write(contents);
}

/// Replaces `to`.
inline void rename(const QString& from, const QString& to) {
    ASSERT_EQ(std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()), 0);
}

class FileDefaultsStoreTest : public testing::Test {
  protected:
    QString at(const char* name) const { return folder_.filePath(text(name)); }

    void write(const QByteArray& bytes) const { put(path_, bytes); }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("<cannot be opened>");
    }
    QJsonObject object() const { return QJsonDocument::fromJson(read(path_)).object(); }
    QStringList names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("settings.json"));
};

} // namespace vantrix::settings_folder
