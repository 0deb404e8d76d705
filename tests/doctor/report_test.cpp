#include "doctor/report.h"

#include <QStringList>

#include <gmock/gmock.h>

#include "doctor/instance_facts.h"

namespace vantrix {
namespace {

using ::testing::HasSubstr;

DoctorReport aReport() {
    DoctorReport report;
    report.system = {{"Session", "GNOME"}};
    report.readings = {
        {{"Processor", "/proc/stat", SourceState::ok, "12%", ""}, 4.2},
        {{"Chip power", "/sys/class/powercap", SourceState::denied, "",
          "Only the administrator may read it, which is a reason that needs more than a single line of eighty."},
         {}},
    };
    report.services = {
        {{"Notifications", "bus", SourceState::ok, "\x1b[31mquoted \" and \\ and \n and \xc2\xb5", ""}, {}}};
    report.instance =
        DoctorInstance{77, ProcessStatistics{7200.0, 3.0, 1.0, 50'331'648, 10'485'760, 14400, 4}, "X11 tray"};
    return report;
}

TEST(DoctorText, FitsItsColumnsAndCannotCommandTheTerminal) {
    const std::string text = textReport(aReport(), 80);
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
    EXPECT_THAT(text, HasSubstr("[31mquoted"));
    for (const QString& line : QString::fromStdString(text).split(u'\n'))
        EXPECT_LE(line.size(), 80) << line.toStdString();
    for (const char* words : {"12%", "single line of eighty.", "77, for 2 h", "48 MB, of which 10 MB", "2.0 per second",
                              "Status item  X11 tray"})
        EXPECT_THAT(text, HasSubstr(words));
    const auto justStarted = instanceFacts(DoctorInstance{5, ProcessStatistics()});
    EXPECT_THAT(justStarted[1].second, HasSubstr("– s per minute")); // no division by no time
}

TEST(DoctorReport, FoldersAreRenamedWhole) {
    DoctorReport report;
    const auto renamed = [&](const char* source) {
        report.services = {{{"Settings", source}, {}}};
        renameFolder(report, "/home/ann", "~");
        return report.services.front().diagnosis.source;
    };
    EXPECT_EQ(renamed("/home/ann/.config/a, /home/ann/b"), "~/.config/a, ~/b");
    EXPECT_EQ(renamed("/home/anna/x"), "/home/anna/x");
    EXPECT_EQ(renamed("/mnt/home/ann"), "/mnt/home/ann");
}

} // namespace
} // namespace vantrix
