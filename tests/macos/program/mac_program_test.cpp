// The program in its bundle, started from a terminal.

#include <QProcess>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 30'000; // milliseconds

struct Outcome {
    int status = -1; ///< below 0: it did not end by itself
    QByteArray output;
    QByteArray errors;
};

Outcome run(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(VANTRIX_PROGRAM), arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

TEST(Program, TellsItsVersionAndItsOptions) {
    const Outcome version = run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.startsWith("vantrix ")) << version.output.toStdString();
    EXPECT_EQ(version.output.count('\n'), 1);
    const Outcome help = run({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.contains("--print")) << help.output.toStdString();
}

TEST(Program, ABadOptionGetsOneLineAndStatusTwo) {
    for (const QStringList& arguments : {QStringList{u"--bogus"_s}, QStringList{u"--print"_s, u"xml"_s}}) {
        const Outcome bad = run(arguments);
        EXPECT_EQ(bad.status, 2);
        EXPECT_EQ(bad.output, QByteArray());
        EXPECT_TRUE(bad.errors.startsWith("vantrix: ")) << bad.errors.toStdString();
        EXPECT_EQ(bad.errors.count('\n'), 1) << bad.errors.toStdString();
    }
}

TEST(Program, PrintsALineOfReadings) {
    const Outcome printed = run({u"--print"_s, u"text"_s, u"--modules"_s, u"cpu,memory"_s, u"--count"_s, u"1"_s});
    EXPECT_EQ(printed.status, 0) << printed.errors.toStdString();
    EXPECT_EQ(printed.output.count('\n'), 1);
    EXPECT_EQ(printed.output.count('%'), 2) << printed.output.toStdString();
}

} // namespace
} // namespace vantrix
