// The program as a whole, run as a user runs it.

#include <chrono>
#include <csignal>

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

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

    QStringList fixture(const char* machine) const {
        const QString root = QStringLiteral(FIXTURES "/") + QLatin1StringView(machine);
        return {u"--proc-root"_s, root + u"/proc"_s, u"--sys-root"_s, root + u"/sys"_s};
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

TEST_F(ProgramTest, RequestsWithoutARunningInstanceFailInOneLine) {
    EXPECT_EQ(run({u"--quit"_s}), 1);
    EXPECT_EQ(errors.count(u'\n'), 1);
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
