#include "app/export_log.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

/// The log stands where others may have put something.
TEST(ExportLog, NeitherFollowsLinksNorWaitsAndTellsOfLostPictures) {
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("export.log"));
    const QString victim = folder.filePath(QStringLiteral("victim"));
    const auto size = [](const QString& path) { return QFileInfo(path).size(); };
    ASSERT_TRUE(QFile::link(victim, log));
    ExportLog(folder.path()).log(QStringLiteral("line"));
    EXPECT_FALSE(QFile::exists(victim));
    ASSERT_TRUE(QFile::remove(log));
    ASSERT_EQ(::mkfifo(QFile::encodeName(log).constData(), 0600), 0);
    ExportLog(folder.path()).log(QStringLiteral("line"));
    ASSERT_TRUE(QFile::remove(log));

    ExportLog lines(folder.path());
    lines.log(QStringLiteral("one"));
    lines.log(QStringLiteral("two"));
    EXPECT_EQ(size(log), 8);
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    lines.save(QStringLiteral("picture"), image);
    EXPECT_FALSE(lines.hasLostPictures());
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("taken.png")));
    lines.save(QStringLiteral("taken"), image);
    EXPECT_TRUE(lines.hasLostPictures());
}

} // namespace
} // namespace vantrix
