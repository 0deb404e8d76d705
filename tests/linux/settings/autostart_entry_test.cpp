#include "linux/settings/autostart_entry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include "linux/settings/desktop_entry.h"

namespace vantrix {
namespace {

class AutostartEntryTest : public ::testing::Test {
  protected:
    AutostartEntryTest() { put(program, "", true); }

    static void put(const QString& path, const QByteArray& contents, bool executable = false) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
        file.write(contents);
        if (executable)
            file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }
    QByteArray entry(const QByteArray& more = {}) const {
        return "[Desktop Entry]\nType=Application\nExec=" + execValue(program).toUtf8() + '\n' + more;
    }
    AutostartEntry item() const { return AutostartEntry({user, {system}, program}); }

    QTemporaryDir folder;
    QString program = folder.filePath(QStringLiteral("the program/100% \"van\\trix\" $HOME `x`"));
    QString user = folder.filePath(QStringLiteral("config/autostart"));
    QString system = folder.filePath(QStringLiteral("xdg/autostart"));
    QString userFile = user + QStringLiteral("/vantrix.desktop");
    QString systemFile = system + QStringLiteral("/vantrix.desktop");
};

TEST_F(AutostartEntryTest, IsOnWhenAnEffectiveEntryStartsAProgramThatExists) {
    struct Case {
        const char* name;
        QByteArray user; ///< empty: no file
        QByteArray system;
        bool enabled;
    };
    const QByteArray gone = "[Desktop Entry]\nType=Application\nExec=/nowhere/vantrix\n";
    const Case cases[] = {
        {"nothing", "", "", false},
        {"the user's", entry(), "", true},
        {"the system's", "", entry(), true},
        {"the user's hides the system's", entry("Hidden=true\n"), entry(), false},
        {"the user's shadows a hidden one", entry(), entry("Hidden=true\n"), true},
        {"switched off by GNOME", entry("X-GNOME-Autostart-enabled=false\n"), "", false},
        {"switched on by GNOME", entry("X-GNOME-Autostart-enabled=true\nHidden=false\n"), "", true},
        {"torn", entry().left(30), entry(), false},
        {"torn within its command", "[Desktop Entry]\nType=Application\nExec=\"/bin/s", "", false},
        {"garbage", QByteArray("\0\xff\x1b[Desktop", 11), "", false},
        {"another group's keys", "[Other]\nType=Application\nExec=/bin/sh\n", "", false},
        {"hidden in another group", entry("[Desktop Action x]\nHidden=true\n"), "", true},
        {"a program that is gone", gone, "", false},
        {"a program to be looked for", "# by hand\n[Desktop Entry]\nType=Application\nExec = sh -c %u\r\n", "", true},
        {"a test for a program that is gone", entry("TryExec=/nowhere/vantrix\n"), "", false},
        {"a test for a program", entry("TryExec=sh\n"), "", true},
    };
    for (const Case& c : cases) {
        QFile::remove(userFile);
        QFile::remove(systemFile);
        if (!c.user.isEmpty())
            put(userFile, c.user);
        if (!c.system.isEmpty())
            put(systemFile, c.system);
        EXPECT_EQ(item().isEnabled(), c.enabled) << c.name;
    }
}

TEST_F(AutostartEntryTest, TurnsOnAndOff) {
    AutostartEntry entry = item();
    entry.setEnabled(true);
    EXPECT_TRUE(entry.isEnabled()) << "whatever characters the path has";
    EXPECT_EQ(QDir(user).entryList(QDir::Files), QStringList{QStringLiteral("vantrix.desktop")});
    entry.setEnabled(false);
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_FALSE(QFile::exists(userFile)) << "leaves nothing behind";
}

TEST_F(AutostartEntryTest, HidesTheSystemsEntryRatherThanFailing) {
    put(systemFile, entry());
    const QByteArray before = read(systemFile);
    AutostartEntry autostart = item();
    autostart.setEnabled(false);
    EXPECT_FALSE(autostart.isEnabled());
    autostart.setEnabled(true);
    EXPECT_TRUE(autostart.isEnabled());
    EXPECT_EQ(read(systemFile), before);
}

TEST_F(AutostartEntryTest, AFailureLeavesEverythingAsItWas) {
    put(folder.filePath(QStringLiteral("config")), "a file where the folder would be");
    AutostartEntry entry = item();
    entry.setEnabled(true);
    EXPECT_FALSE(entry.isEnabled());
}

TEST(DesktopEntry, QuotesAProgramsPathByTheRules) {
    struct Case {
        const char* name;
        const char* program;
        const char* value;
    };
    const Case cases[] = {
        {"plain", "/usr/bin/vantrix", R"("/usr/bin/vantrix")"},
        {"a blank", "/opt/my apps/v", R"("/opt/my apps/v")"},
        {"a percent sign", "/a%b", R"("/a%%b")"},
        {"a dollar", "/a$b", R"("/a\\$b")"},
        {"a double quote", "/a\"b", R"("/a\\"b")"},
        {"a backslash", "/a\\b", R"("/a\\\\b")"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(execValue(QString::fromUtf8(c.program)), QString::fromUtf8(c.value)) << c.name;
}

} // namespace
} // namespace vantrix
