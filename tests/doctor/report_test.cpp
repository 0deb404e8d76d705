#include "doctor/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include "doctor/instance_facts.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using ::testing::HasSubstr;

DoctorReport aReport() {
    DoctorReport report;
    report.system = {{"System", "Debian 12"}, {"Session", "GNOME"}};
    report.readings = {
        {{"Processor", "/proc/stat", SourceState::ok, "12%", ""}, 4.2},
        {{"GPU", "/sys/class/drm/card0/device/gpu_busy_percent/of/a/long/name", SourceState::ok, "37%, highest of 2",
          ""},
         123.4},
        {{"Chip power", "/sys/class/powercap", SourceState::denied, "",
          "Only the administrator may read it, which is a reason that needs more than a single line of eighty."},
         {}},
        {{"Accessories", "power_supply", SourceState::ok, "87%", ""}, 5000.0},
    };
    report.services = {{{"Notifications", "bus", SourceState::ok, "a daemon with a long name 1.2", ""}, {}}};
    report.instance = DoctorInstance{77, ProcessStatistics{7200.0, 3.0, 1.0, 50'331'648, 10'485'760, 14400, 4}};
    return report;
}

TEST(DoctorText, PutsRowsInColumnsAndTheRestBelow) {
    EXPECT_EQ(textReport(aReport(), 80),
              "SYSTEM\n"
              "  System   Debian 12\n"
              "  Session  GNOME\n"
              "\n"
              "READINGS       STATE   VALUE                µs  SOURCE\n"
              "  Processor    ok      12%                 4.2  /proc/stat\n"
              "  GPU          ok      37%, highest of 2   123\n"
              "               /sys/class/drm/card0/device/gpu_busy_percent/of/a/long/name\n"
              "  Chip power   denied                           /sys/class/powercap\n"
              "               Only the administrator may read it, which is a reason that needs\n"
              "               more than a single line of eighty.\n"
              "  Accessories  ok      87%                5000  power_supply\n"
              "  One pass                                 128\n"
              "\n"
              "SERVICES         STATE  VALUE                  SOURCE\n"
              "  Notifications  ok     a daemon with a long   bus\n"
              "                        name 1.2\n"
              "\n"
              "RUNNING INSTANCE\n"
              "  Process   77, for 2 h\n"
              "  CPU time  4.00 s (program 3.00, kernel 1.00), 0.03 s per minute\n"
              "  Memory    48 MB, of which 10 MB its own\n"
              "  Wake-ups  14400, 2.0 per second, 4 threads\n");
}

TEST(DoctorText, WordsOfServicesCannotCommandTheTerminal) {
    auto report = aReport();
    report.services.front().diagnosis.value = "\x1b[31mred\nline";
    const std::string text = textReport(report, 80);
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
    EXPECT_THAT(text, HasSubstr("[31mred line"));
}

TEST(DoctorText, TellsOfInstancesOutOfSight) {
    EXPECT_THAT(textReport({}, 80), HasSubstr("RUNNING INSTANCE\n  None in this session.\n"));
    EXPECT_THAT(instanceFacts(DoctorInstance{0, {}}).front().second, HasSubstr("out of sight"));
    EXPECT_THAT(instanceFacts(DoctorInstance{5, {}}).front().second, HasSubstr("cannot be read"));
    const auto justStarted = instanceFacts(DoctorInstance{5, ProcessStatistics()});
    EXPECT_THAT(justStarted[1].second, HasSubstr("– s per minute")); // no division by no time
}

TEST(DoctorText, UptimesAreShort) {
    EXPECT_EQ(uptimeText(59.9), "59 s");
    EXPECT_EQ(uptimeText(3599), "59 min");
    EXPECT_EQ(uptimeText(3600), "1 h");
    EXPECT_EQ(uptimeText(86399), "23 h 59 min");
    EXPECT_EQ(uptimeText(86400 * 9 + 7200), "9 d 2 h");
}

TEST(DoctorJSON, HoldsWhatTheTextDoes) {
    auto report = aReport();
    report.services.front().diagnosis.value = "quoted \" and \\ and \n and \xc2\xb5";
    const auto object = QJsonDocument::fromJson(QByteArray::fromStdString(jsonReport(report))).object();
    EXPECT_EQ(object[u"system"][u"session"], u"GNOME"_s);
    EXPECT_EQ(object[u"readings"].toArray().size(), 4);
    EXPECT_EQ(object[u"readings"][0].toObject(), (QJsonObject{{u"name"_s, u"Processor"_s},
                                                              {u"source"_s, u"/proc/stat"_s},
                                                              {u"state"_s, u"ok"_s},
                                                              {u"value"_s, u"12%"_s},
                                                              {u"microseconds"_s, 4.2}}));
    EXPECT_FALSE(object[u"readings"][2].toObject().contains(u"value"_s));
    EXPECT_EQ(object[u"services"][0][u"value"], u"quoted \" and \\ and \n and µ"_s);
    EXPECT_EQ(object[u"instance"][u"wakeUps"], 14400);
    EXPECT_EQ(object[u"passMicroseconds"], 127.6);
}

TEST(DoctorReport, FoldersAreRenamedWhole) {
    DoctorReport report;
    const auto renamed = [&](const char* source) {
        report.services = {{{"Settings", source}, {}}};
        renameFolder(report, "/home/ann", "~");
        return report.services.front().diagnosis.source;
    };
    EXPECT_EQ(renamed("/home/ann/.config/a, /home/ann/b"), "~/.config/a, ~/b");
    EXPECT_EQ(renamed("unix:path=/home/ann/bus"), "unix:path=~/bus");
    EXPECT_EQ(renamed("/home/anna/x"), "/home/anna/x");
    EXPECT_EQ(renamed("/mnt/home/ann"), "/mnt/home/ann");
    EXPECT_EQ(renamed("/home/ann"), "~");
}

} // namespace
} // namespace vantrix
