#include "app/printed_line.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

const std::vector<MenuBarItem> row{
    {"CPU", {"7%"}, MenuBarSeverity::normal, {}, 0.07, "100%"},
    {"NET", {"↓12K", "↑1.5M"}, MenuBarSeverity::normal, {}, 0.0, "↓99M"},
    {"DISK", {"95%"}, MenuBarSeverity::critical, {}, 0.95, "100%"},
};

QJsonObject parsed(const std::string& line) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(line), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << line;
    EXPECT_EQ(line.find('\n'), std::string::npos);
    return document.object();
}

TEST(TextLine, KeepsItsColumnsWhileNumbersChange) {
    EXPECT_EQ(textLine(row), "CPU   7%  NET ↓12K ↑1.5M  DISK  95%");
    EXPECT_EQ(textLine({}), "");
}

TEST(WaybarLine, GivesTheBarWhatItUnderstands) {
    const QJsonObject object = parsed(waybarLine(row));
    EXPECT_EQ(object["text"_L1].toString(), u"CPU 7%  NET ↓12K ↑1.5M  DISK 95%"_s);
    EXPECT_EQ(object["tooltip"_L1].toString(), u"CPU 7%\nNET ↓12K ↑1.5M\nDISK 95%"_s);
    EXPECT_EQ(object["class"_L1].toString(), u"critical"_s);
    EXPECT_EQ(object["percentage"_L1].toInt(), 7);
}

TEST(WaybarLine, EscapesWhatWouldBeMarkup) {
    MenuBarItem odd = row.front();
    odd.label = "<&>";
    EXPECT_EQ(parsed(waybarLine({odd}))["text"_L1].toString(), u"&lt;&amp;&gt; 7%"_s);
}

TEST(JsonLine, HoldsEveryRecordUnderItsFieldNames) {
    const QJsonObject object = parsed(jsonLine(demoReadings(), std::nullopt));
    EXPECT_EQ(object["cpu"_L1]["perCore"_L1].toArray().size(), 10);
    EXPECT_EQ(object["memory"_L1]["total"_L1].toInteger(), qint64{16} << 30);
    EXPECT_EQ(object["memory"_L1]["pressure"_L1].toString(), u"normal"_s);
    EXPECT_EQ(object["network"_L1]["download"_L1].toDouble(), 2'400'000.0);
    EXPECT_EQ(object["disk"_L1]["readRate"_L1].toDouble(), 31'000'000.0);
    EXPECT_EQ(object["gpu"_L1].toDouble(), 0.21);
    EXPECT_EQ(object["sensors"_L1]["cpu"_L1].toDouble(), 52.0);
    EXPECT_EQ(object["sensors"_L1]["fans"_L1].toArray().size(), 1);
    EXPECT_EQ(object["battery"_L1]["minutesRemaining"_L1].toInt(), 410);
    EXPECT_EQ(object["networkInfo"_L1]["kind"_L1].toString(), u"wifi"_s);
    EXPECT_EQ(object["networkInfo"_L1]["rssi"_L1].toInt(), -52);
    EXPECT_EQ(object["networkInfo"_L1]["linkSpeedMbps"_L1].toDouble(), 866.0);
    EXPECT_EQ(object["accessories"_L1].toArray().size(), 3);
    EXPECT_EQ(object["accessories"_L1][1]["percent"_L1].toInt(), 64);
}

TEST(JsonLine, LeavesOutWhatIsAbsent) {
    Readings readings;
    readings.disk = {1000, 400, std::nullopt, std::nullopt};
    const QJsonObject object = parsed(jsonLine(readings, std::nullopt));
    EXPECT_EQ(object.keys(), (QStringList{u"disk"_s, u"interval"_s, u"networkInfo"_s}));
    EXPECT_EQ(object["networkInfo"_L1].toObject(), (QJsonObject{{u"kind"_s, u"offline"_s}}));
    EXPECT_EQ(object["disk"_L1].toObject().keys(), (QStringList{u"available"_s, u"total"_s}));
    EXPECT_EQ(parsed(jsonLine(demoReadings(), std::vector{MenuBarModule::gpu})).keys(),
              (QStringList{u"gpu"_s, u"interval"_s}));
}

} // namespace
} // namespace vantrix
