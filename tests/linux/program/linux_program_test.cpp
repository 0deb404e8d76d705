// The program as a whole, run as a user runs it.

#include <chrono>
#include <csignal>
#include <map>

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

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 30'000; // milliseconds; sanitized builds on a busy machine are slow

class ProgramTest : public ::testing::Test {
  protected:
    ProgramTest() {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1StringView(variable));
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s);
        process.setProcessEnvironment(environment);
    }

    void start(const QStringList& arguments) {
        process.start(QStringLiteral(VANTRIX_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted(patience));
    }

    /// The exit status of a run that ends by itself.
    int run(const QStringList& arguments) {
        start(arguments);
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        output = QString::fromUtf8(process.readAllStandardOutput());
        errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    QTemporaryDir folder;
    QProcess process;
    QString output;
    QString errors;
};

TEST_F(ProgramTest, BadInputGetsOneLineAndStatusTwo) {
    for (const QStringList& arguments : {QStringList{u"--bogus"_s}, QStringList{u"--print"_s, u"xml"_s},
                                         QStringList{u"--print"_s, u"text"_s, u"--proc-root"_s, u"/nowhere"_s}}) {
        EXPECT_EQ(run(arguments), 2);
        EXPECT_EQ(output, QString());
        EXPECT_TRUE(errors.startsWith(u"vantrix: "_s)) << errors.toStdString();
        EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
    }
}

TEST_F(ProgramTest, PrintsTheAskedNumberOfLines) {
    EXPECT_EQ(run({u"--print"_s, u"text"_s, u"--interval"_s, u"0.5"_s, u"--count"_s, u"2"_s}), 0);
    EXPECT_EQ(output.count(u'\n'), 2);
    EXPECT_TRUE(output.startsWith(u"CPU "_s)) << output.toStdString();
    EXPECT_EQ(errors, QString());
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheEnvironment) {
    struct Row {
        const char* language;
        const char* all;
        const char* lang;
        const char* caption;
    };
    for (const Row& row : {Row{"", "", "it_IT.UTF-8", "DISCO"}, Row{"zh_TW:fr", "", "zh_TW.UTF-8", "DISQ"},
                           Row{"it", "C", "it_IT.UTF-8", "DISK"}, Row{"", "es_ES.UTF-8", "fr_FR.UTF-8", "DISCO"}}) {
        auto environment = process.processEnvironment();
        environment.insert(u"LANGUAGE"_s, QLatin1StringView(row.language));
        environment.insert(u"LC_ALL"_s, QLatin1StringView(row.all));
        environment.insert(u"LC_MESSAGES"_s, QString());
        environment.insert(u"LANG"_s, QLatin1StringView(row.lang));
        process.setProcessEnvironment(environment);
        EXPECT_EQ(run({u"--print"_s, u"text"_s, u"--count"_s, u"1"_s, u"--modules"_s, u"disk"_s}), 0);
        EXPECT_TRUE(output.startsWith(QLatin1StringView(row.caption) + u' '))
            << row.language << ' ' << row.all << ' ' << row.lang << ": " << output.toStdString();
    }
}

TEST_F(ProgramTest, WithoutADisplayItSaysSoAndPrints) {
    start({});
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
    process.start(u"bash"_s, {u"-c"_s, script, QStringLiteral(VANTRIX_PROGRAM)});
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput().count('\n'), 1);
    EXPECT_EQ(process.readAllStandardError(), QByteArray());
}

TEST_F(ProgramTest, AFullDiskIsTold) {
    process.setStandardOutputFile(u"/dev/full"_s);
    for (const QStringList& arguments : {QStringList{u"--print"_s, u"text"_s}, QStringList{u"--doctor"_s}}) {
        EXPECT_EQ(run(arguments), 1);
        EXPECT_EQ(errors, u"vantrix: cannot write: No space left on device\n"_s);
    }
}

TEST_F(ProgramTest, ExportsTheSamePicturesEachTime) {
    QTemporaryDir target;
    const QDir pictures(target.filePath(u"not/there/yet"_s));
    const auto contents = [&] {
        std::map<QString, QByteArray> files;
        for (const QString& name : pictures.entryList(QDir::Files)) {
            QFile file(pictures.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files[name] = file.readAll();
        }
        return files;
    };
    EXPECT_EQ(run({u"-exportScreenshots"_s, pictures.path()}), 0);
    const auto first = contents();
    EXPECT_EQ(first.size(), 17u); // 2 popovers, 6 rows, 8 tabs and the log
    for (const auto& [name, data] : first)
        EXPECT_GT(data.size(), 500) << name.toStdString();
    EXPECT_EQ(QImage::fromData(first.at(u"settings-general-dark.png"_s)).size(), QSize(1040, 1000));
    EXPECT_EQ(QImage::fromData(first.at(u"popover-light.png"_s)).width(), 680);
    EXPECT_EQ(run({u"-exportScreenshots"_s, pictures.path()}), 0);
    EXPECT_EQ(contents(), first); // the log was begun anew
    const QByteArray log = first.at(u"export.log"_s);
    EXPECT_TRUE(log.startsWith("avvio, cartella: " + pictures.path().toUtf8() + "\ncreo il monitor\n"));
    EXPECT_TRUE(log.endsWith("salvato settings-alerts-light.png\nfinito\n"));
    EXPECT_TRUE(errors.startsWith(u"   [export] avvio, cartella: "_s)) << errors.toStdString();
    EXPECT_TRUE(QDir(folder.path()).isEmpty()); // the user's settings were left alone
}

TEST_F(ProgramTest, AnExportSaysWhatItCouldNotWrite) {
    QTemporaryDir target;
    ASSERT_TRUE(QDir(target.path()).mkpath(u"popover-dark.png"_s)); // a folder where a picture should go
    EXPECT_EQ(run({u"-exportScreenshots"_s, target.path()}), 0);
    EXPECT_TRUE(errors.contains(u"ERRORE scrittura popover-dark: "_s)) << errors.toStdString();
    EXPECT_TRUE(errors.contains(u"salvato popover-light.png"_s));
    EXPECT_EQ(run({u"-exportScreenshots"_s, u"/dev/null/nowhere"_s}), 1);
    EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
}

TEST_F(ProgramTest, RequestsWithoutARunningInstanceFailInOneLine) {
    EXPECT_EQ(run({u"--quit"_s}), 1);
    EXPECT_EQ(errors.count(u'\n'), 1);
}

TEST_F(ProgramTest, TheDoctorReportsOnAnyMachine) {
    for (const char* machine : {"container", "old-kernel", "laptop-hybrid-cores"}) {
        const fakes::FixtureMachine fixture(machine);
        const KernelRoots roots = fixture.roots();
        EXPECT_EQ(run({u"--doctor"_s, u"json"_s, u"--proc-root"_s, QString::fromStdString(roots.proc), u"--sys-root"_s,
                       QString::fromStdString(roots.sys)}),
                  0)
            << machine;
        EXPECT_EQ(errors, QString()) << machine;
        const auto report = QJsonDocument::fromJson(output.toUtf8()).object();
        const auto processor = report[u"readings"][0];
        EXPECT_EQ(processor[u"name"], u"Processor"_s) << machine;
        EXPECT_EQ(processor[u"state"], u"ok"_s) << machine;
        EXPECT_EQ(processor[u"source"], u"<proc>/stat"_s) << machine;
        EXPECT_GT(processor[u"microseconds"].toDouble(), 0.0) << machine;
        EXPECT_FALSE(report.contains(u"instance"_s)) << machine;
        const auto bluetooth = report[u"readings"].toArray().last();
        EXPECT_EQ(bluetooth[u"name"], u"Bluetooth"_s) << machine;
        EXPECT_TRUE(bluetooth[u"reason"].toString().endsWith(u"not through another root."_s)) << machine;
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty()); // it looked, and left nothing behind
}

TEST_F(ProgramTest, TheDoctorKeepsTheUsersFoldersToItself) {
    QTemporaryDir people;
    const QString home = people.filePath(u"ann"_s);
    ASSERT_TRUE(QDir(people.path()).mkpath(u"disk2/ann/host"_s));
    ASSERT_TRUE(QFile::link(people.filePath(u"disk2/ann"_s), home)); // a link, as on large machines
    auto environment = process.processEnvironment();
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_CONFIG_HOME"_s, people.filePath(u"settings/ann"_s));
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"XDG_STATE_HOME"_s, people.filePath(u"state/ann"_s));
    process.setProcessEnvironment(environment);
    EXPECT_EQ(run({u"--doctor"_s, u"--sys-root"_s, people.filePath(u"disk2/ann/host"_s)}), 0);
    for (const char* shown : {"<sys> ~/host", "$XDG_CONFIG_HOME/vantrix/settings.json", "$XDG_STATE_HOME/vantrix/",
                              "$XDG_CONFIG_HOME/autostart/"})
        EXPECT_TRUE(output.contains(QLatin1StringView(shown))) << shown << '\n' << output.toStdString();
    EXPECT_FALSE(output.contains(people.path())) << output.toStdString();
}

TEST_F(ProgramTest, TheDoctorTellsWhatTheRunningInstanceCosts) {
    auto environment = process.processEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    process.setProcessEnvironment(environment);
    QProcess instance;
    instance.setProcessEnvironment(environment);
    instance.start(QStringLiteral(VANTRIX_PROGRAM), {});
    ASSERT_TRUE(instance.waitForStarted(patience));
    const QDeadlineTimer deadline(patience);
    while (run({u"--show-popover"_s}) != 0 && !deadline.hasExpired()) {
    }
    QJsonValue told;
    do { // it may still be busy with the popover, and not have slept so far
        EXPECT_EQ(run({u"--doctor"_s, u"json"_s}), 0);
        told = QJsonDocument::fromJson(output.toUtf8())[u"instance"];
    } while (told[u"wakeUps"].toInteger() == 0 && !deadline.hasExpired());
    EXPECT_EQ(told[u"pid"].toInteger(), instance.processId());
    EXPECT_GT(told[u"wakeUps"].toInteger(), 0);
    EXPECT_GT(told[u"residentBytes"].toInteger(), 1'000'000);
    EXPECT_EQ(run({u"--quit"_s}), 0); // it was not disturbed
    EXPECT_TRUE(instance.waitForFinished(patience));
}

TEST_F(ProgramTest, ASecondInstanceTalksToTheFirstAndQuitEndsIt) {
    QProcess first;
    auto environment = process.processEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    first.setProcessEnvironment(environment);
    process.setProcessEnvironment(environment);
    first.start(QStringLiteral(VANTRIX_PROGRAM), {});
    ASSERT_TRUE(first.waitForStarted(patience));
    const QDeadlineTimer deadline(patience);
    while (run({u"--show-popover"_s}) != 0 && !deadline.hasExpired()) {
    }
    EXPECT_EQ(run({}), 0); // started again: shows the one that runs instead of a second icon
    EXPECT_EQ(first.state(), QProcess::Running);
    EXPECT_EQ(run({u"--quit"_s}), 0);
    ASSERT_TRUE(first.waitForFinished(patience));
    EXPECT_EQ(first.exitCode(), 0);
}

TEST_F(ProgramTest, AKilledInstanceDoesNotKeepTheNextOneFromStarting) {
    auto environment = process.processEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    process.setProcessEnvironment(environment);
    for (int life = 0; life < 2; ++life) {
        QProcess instance;
        instance.setProcessEnvironment(environment);
        instance.start(QStringLiteral(VANTRIX_PROGRAM), {});
        ASSERT_TRUE(instance.waitForStarted(patience));
        const QDeadlineTimer deadline(patience);
        while (run({u"--show-popover"_s}) != 0 && !deadline.hasExpired()) {
        }
        EXPECT_EQ(instance.state(), QProcess::Running) << life;
        instance.kill();
        instance.waitForFinished(patience);
    }
}

} // namespace
} // namespace vantrix
