// The program as a whole, run as a user runs it.

#include <chrono>
#include <csignal>
#include <map>

#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "linux/services/private_bus.h"
#include "platform/application_service.h"
#include "views/drawn.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 30'000; // milliseconds; sanitized builds on a busy machine are slow

struct ProgramTest : ::testing::Test {
    ProgramTest() {
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1StringView(variable));
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s);
    }

    void start(QProcess& program, const QStringList& arguments = {}) const {
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(VANTRIX_PROGRAM), arguments);
        ASSERT_TRUE(program.waitForStarted(patience));
    }

    /// The exit status of a run that ends by itself.
    int run(const QString& arguments) {
        start(process, arguments.split(u' ', Qt::SkipEmptyParts));
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        output = QString::fromUtf8(process.readAllStandardOutput());
        errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    /// Starts the program without a screen, and waits until it does what it is asked.
    void startInstance(QProcess& instance) {
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        start(instance);
        const QDeadlineTimer deadline(patience);
        while (run(u"--show-popover"_s) != 0 && !deadline.hasExpired()) {
        }
        EXPECT_EQ(instance.state(), QProcess::Running);
    }

    /// As a desktop asks, which need not be in the program's session.
    static bool activate(const PrivateBus& bus, const QString& action, const QVariantList& parameters = {}) {
        auto call = QDBusMessage::createMethodCall(QString::fromLatin1(applicationId), u"/app/vantrix/Vantrix"_s,
                                                   u"org.freedesktop.Application"_s, u"ActivateAction"_s);
        call << action << parameters << QVariantMap();
        return BusConnection(bus.address()).bus().call(call, QDBus::Block).type() == QDBusMessage::ReplyMessage;
    }

    bool settingsShow(const QByteArray& tab) const {
        return spinUntil([&] {
            QFile file(folder.filePath(u"vantrix/settings.json"_s));
            return file.open(QFile::ReadOnly) && file.readAll().contains(tab);
        });
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess process;
    QString output;
    QString errors;
};

TEST_F(ProgramTest, BadInputGetsOneLineAndStatusTwo) {
    for (const QString& arguments : {u"--bogus"_s, u"--print xml"_s, u"--print text --proc-root /nowhere"_s}) {
        EXPECT_EQ(run(arguments), 2);
        EXPECT_EQ(output, QString());
        EXPECT_TRUE(errors.startsWith(u"vantrix: "_s)) << errors.toStdString();
        EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
    }
}

TEST_F(ProgramTest, PrintsTheAskedNumberOfLines) {
    EXPECT_EQ(run(u"--print text --interval 0.5 --count 2"_s), 0);
    EXPECT_EQ(output.count(u'\n'), 2);
    EXPECT_TRUE(output.startsWith(u"CPU "_s)) << output.toStdString();
    EXPECT_EQ(errors, QString());
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheEnvironment) {
    const struct {
        const char* language;
        const char* all;
        const char* lang;
        const char* caption;
    } cases[] = {{"zh_TW:fr", "", "zh_TW.UTF-8", "DISQ"},
                 {"it", "C", "it_IT.UTF-8", "DISK"},
                 {"", "es_ES.UTF-8", "fr_FR.UTF-8", "DISCO"}};
    for (const auto& c : cases) {
        environment.insert(u"LANGUAGE"_s, QLatin1StringView(c.language));
        environment.insert(u"LC_ALL"_s, QLatin1StringView(c.all));
        environment.insert(u"LC_MESSAGES"_s, QString());
        environment.insert(u"LANG"_s, QLatin1StringView(c.lang));
        EXPECT_EQ(run(u"--print text --count 1 --modules disk"_s), 0);
        EXPECT_EQ(output.section(u' ', 0, 0), QLatin1StringView(c.caption)) << c.language << ' ' << c.all;
    }
}

TEST_F(ProgramTest, WithoutADisplayItSaysSoAndPrints) {
    start(process);
    ASSERT_TRUE(process.waitForReadyRead(patience));
    EXPECT_TRUE(process.readLine().startsWith("CPU "));
    process.terminate();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit); // SIGTERM ends it in good order
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardError().count('\n'), 1);
}

TEST_F(ProgramTest, AClosedStandardOutputEndsPrintingQuietly) {
    const QString script = u"\"$0\" --print json --interval 0.5 | head -n 1; exit ${PIPESTATUS[0]}"_s;
    process.setProcessEnvironment(environment);
    process.start(u"bash"_s, {u"-c"_s, script, QStringLiteral(VANTRIX_PROGRAM)});
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitCode(), 0);
    const QByteArray line = process.readAllStandardOutput();
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.contains("\"interval\":0.5"))
        << "the interval in force, already on the first line: " << line.data();
    EXPECT_EQ(process.readAllStandardError(), QByteArray());
}

TEST_F(ProgramTest, AFullDiskIsTold) {
    process.setStandardOutputFile(u"/dev/full"_s);
    for (const QString& arguments : {u"--print text"_s, u"--doctor"_s}) {
        EXPECT_EQ(run(arguments), 1);
        EXPECT_EQ(errors, u"vantrix: cannot write: No space left on device\n"_s);
    }
}

TEST_F(ProgramTest, ExportsTheSamePicturesEachTime) {
    QTemporaryDir target;
    const QDir pictures(target.filePath(u"not/there/yet"_s));
    const auto exported = [&] {
        EXPECT_EQ(run(u"-exportScreenshots "_s + pictures.path()), 0);
        std::map<QString, QByteArray> files;
        for (const QString& name : pictures.entryList(QDir::Files)) {
            QFile file(pictures.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files[name] = file.readAll();
            EXPECT_GT(files[name].size(), 500) << name.toStdString();
        }
        return files;
    };
    const auto first = exported();
    EXPECT_EQ(first.size(), 17u); // 2 popovers, 6 rows, 8 tabs and the log
    EXPECT_EQ(QImage::fromData(first.at(u"settings-general-dark.png"_s)).size(), QSize(1040, 1000));
    const QImage alerts = QImage::fromData(first.at(u"settings-alerts-dark.png"_s));
    EXPECT_EQ(alerts.pixelColor(910, 434), QColor(64, 148, 255)) << "their switches are on";
    const auto popover = QImage::fromData(first.at(u"popover-light.png"_s));
    EXPECT_EQ(popover.width(), 680);
    EXPECT_EQ(inkOf(popover, popover.pixelColor(1, popover.height() - 2)).bottom(), popover.height() - 25);
    EXPECT_TRUE(first.at(u"export.log"_s).endsWith("salvato settings-alerts-light.png\nfinito\n"));
    EXPECT_EQ(exported(), first);               // the log was begun anew
    EXPECT_TRUE(QDir(folder.path()).isEmpty()); // the user's settings were left alone
}

TEST_F(ProgramTest, TheDoctorKeepsTheUsersFoldersToItself) {
    QTemporaryDir people;
    const QString home = people.filePath(u"ann"_s);
    ASSERT_TRUE(QDir(people.path()).mkpath(u"disk2/ann/host"_s));
    ASSERT_TRUE(QFile::link(people.filePath(u"disk2/ann"_s), home)); // a link, as on large machines
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_CONFIG_HOME"_s, people.filePath(u"settings/ann"_s));
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"XDG_STATE_HOME"_s, people.filePath(u"state/ann"_s));
    EXPECT_EQ(run(u"--doctor --sys-root "_s + people.filePath(u"disk2/ann/host"_s)), 0);
    for (const char* shown : {"<sys> ~/host", "$XDG_CONFIG_HOME/vantrix/settings.json", "$XDG_STATE_HOME/vantrix/",
                              "$XDG_CONFIG_HOME/autostart/"})
        EXPECT_TRUE(output.contains(QLatin1StringView(shown))) << shown << '\n' << output.toStdString();
    EXPECT_FALSE(output.contains(people.path())) << output.toStdString();
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        environment.insert(QLatin1StringView(variable), u"relative"_s); // not to be believed
    EXPECT_EQ(run(u"--doctor"_s), 0);
    for (const char* usual : {"~/.config/vantrix/settings.json", "~/.local/state/vantrix/"})
        EXPECT_TRUE(output.contains(QLatin1StringView(usual))) << usual << '\n' << output.toStdString();
}

TEST_F(ProgramTest, ARunningInstanceIsTalkedTo) {
    QProcess instance;
    startInstance(instance);
    QJsonValue told;
    const QDeadlineTimer deadline(patience);
    do { // it may still be busy with the popover, and not have slept so far
        EXPECT_EQ(run(u"--doctor json"_s), 0);
        told = QJsonDocument::fromJson(output.toUtf8())[u"instance"];
    } while (told[u"wakeUps"].toInteger() == 0 && !deadline.hasExpired());
    EXPECT_NE(told[u"statusItem"].toString(), QString());
    EXPECT_EQ(told[u"pid"].toInteger(), instance.processId());
    EXPECT_GT(told[u"wakeUps"].toInteger(), 0);
    EXPECT_GT(told[u"residentBytes"].toInteger(), 1'000'000);
    EXPECT_EQ(run({}), 0); // started again: shows the one that runs instead of a second icon
    EXPECT_EQ(run(u"--quit"_s), 0);
    ASSERT_TRUE(instance.waitForFinished(patience));
    EXPECT_EQ(instance.exitCode(), 0);
}

TEST_F(ProgramTest, TheBusStartsItWhereItIsInstalled) {
    const QString prefix = folder.filePath(u"a prefix"_s);
    const QString build = QFileInfo(QStringLiteral(VANTRIX_PROGRAM)).path();
    EXPECT_EQ(QProcess::execute(u"cmake"_s, {u"--install"_s, build, u"--prefix"_s, prefix}), 0);
    QProcess instance;
    startInstance(instance); // the bus does not know
    const PrivateBus bus({}, QFile::encodeName(prefix) + "/share/dbus-1/services", environment);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    EXPECT_TRUE(activate(bus, u"settings"_s, {u"alerts"_s}));
    EXPECT_TRUE(settingsShow("alerts")) << "by the one that runs";
    EXPECT_EQ(run(u"--quit"_s), 0);
    ASSERT_TRUE(instance.waitForFinished(patience));

    EXPECT_EQ(run(u"--quit"_s), 1) << "starts nothing";
    ASSERT_TRUE(QDir(folder.filePath(u"vantrix"_s)).removeRecursively());
    EXPECT_TRUE(activate(bus, u"quit"_s));
    EXPECT_TRUE(spinUntil([&] { return run(u"--quit"_s) == 1; }));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"vantrix"_s))) << "comes and goes without a pass";

    EXPECT_TRUE(activate(bus, u"settings"_s, {u"popover"_s}));
    EXPECT_TRUE(settingsShow("popover"));
    const QString socket = folder.filePath(u"vantrix-console.socket"_s);
    ASSERT_TRUE(QFile::rename(socket, socket + u'~'));
    EXPECT_EQ(run({}), 0) << "shows the one that runs, by the bus";
    ASSERT_TRUE(QFile::rename(socket + u'~', socket));
    PrivateBus frozen;
    frozen.freeze();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, frozen.address());
    EXPECT_EQ(run(u"--quit"_s), 0) << "by the socket";
}

TEST_F(ProgramTest, AKilledInstanceDoesNotKeepTheNextOneFromStarting) {
    for (int life = 0; life < 2; ++life) {
        QProcess instance;
        startInstance(instance);
        instance.kill();
        instance.waitForFinished(patience);
    }
}

} // namespace
} // namespace vantrix
