#include "linux/settings/autostart_entry.h"

#include <QFileInfo>

#include "linux/settings/desktop_entry.h"
#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace settings_folder;

struct AutostartEntryTest : ::testing::Test {
    AutostartEntryTest() {
        for (const QString& file : {program, userFile, systemFile})
            QDir().mkpath(QFileInfo(file).path());
        put(program, "");
        setMode(program, 0700);
    }

    QByteArray entry(const QByteArray& more = {}) const {
        return "[Desktop Entry]\nType=Application\nExec=" + execValue(program).toUtf8() + '\n' + more;
    }
    AutostartEntry item() const { return AutostartEntry({user, {system}, program}); }

    QTemporaryDir folder;
    QString program = folder.filePath(QStringLiteral("the program/100% \"van\\trix\" $HOME `x`"));
    QString user = folder.filePath(QStringLiteral("config/autostart"));
    QString system = folder.filePath(QStringLiteral("xdg/autostart"));
    QString userFile = user + QStringLiteral("/app.vantrix.Vantrix.desktop");
    QString systemFile = system + QStringLiteral("/app.vantrix.Vantrix.desktop");
};

TEST_F(AutostartEntryTest, IsOnWhenAnEffectiveEntryStartsAProgramThatExists) {
    const QByteArray gone = "[Desktop Entry]\nType=Application\nExec=/nowhere/vantrix\n";
    const struct {
        const char* name;
        QByteArray user; ///< empty: no file
        QByteArray system;
        bool enabled;
    } cases[] = {
        {"nothing", "", "", false},
        {"the user's", entry(), "", true},
        {"the system's", "", entry(), true},
        {"the user's hides the system's", entry("Hidden=true\n"), entry(), false},
        {"the user's shadows a hidden one", entry(), entry("Hidden=true\n"), true},
        {"switched off by GNOME", entry("X-GNOME-Autostart-enabled=false\n"), "", false},
        {"torn", entry().left(30), entry(), false},
        {"garbage", QByteArray("\0\xff\x1b[Desktop", 11), "", false},
        {"hidden in another group", entry("[Desktop Action x]\nHidden=true\n"), "", true},
        {"a program that is gone", gone, "", false},
        {"a program to be looked for", "# by hand\n[Desktop Entry]\nType=Application\nExec = sh -c %u\r\n", "", true},
        {"a test for a program that is gone", entry("TryExec=/nowhere/vantrix\n"), "", false},
    };
    const auto putOrRemove = [](const QString& path, const QByteArray& contents) {
        contents.isEmpty() ? void(QFile::remove(path)) : put(path, contents);
    };
    for (const auto& c : cases) {
        putOrRemove(userFile, c.user);
        putOrRemove(systemFile, c.system);
        EXPECT_EQ(item().isEnabled(), c.enabled) << c.name;
    }
    QFile::remove(userFile);
    ASSERT_EQ(::mkfifo(QFile::encodeName(userFile).constData(), 0600), 0);
    EXPECT_FALSE(item().isEnabled()) << "a pipe that nobody writes to";
}

TEST_F(AutostartEntryTest, TurnsOnAndOff) {
    const QString plain = user + QStringLiteral("/vantrix.desktop");
    AutostartEntry autostart = item();
    put(plain, entry());
    EXPECT_TRUE(autostart.isEnabled());
    autostart.setEnabled(true);
    EXPECT_TRUE(autostart.isEnabled()) << "whatever characters the path has";
    EXPECT_EQ(names(user), QStringList{QStringLiteral("app.vantrix.Vantrix.desktop")}) << "or it would start twice";
    put(plain, entry());
    autostart.setEnabled(false);
    EXPECT_FALSE(autostart.isEnabled());
    EXPECT_EQ(names(user), QStringList()) << "leaves nothing behind";
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
    ASSERT_TRUE(QDir(user).removeRecursively());
    put(user, "a file where the folder would be");
    AutostartEntry entry = item();
    entry.setEnabled(true);
    EXPECT_FALSE(entry.isEnabled());
}

} // namespace
} // namespace vantrix
