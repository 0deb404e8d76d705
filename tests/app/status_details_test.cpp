#include "app/status_details.h"

#include <QTextDocument>

#include <gtest/gtest.h>

#include "monitor/readings.h"

namespace vantrix {
namespace {

TEST(StatusDetails, TellWhatTheRowDoesNot) {
    Readings readings = demoReadings();
    readings.networkInfo.ssid = "<b>Tom & Co</b>";
    const QString all = statusDetails(readings, {}, {});
    EXPECT_EQ(all.toStdString(), "Memory: 10 GB of 16 GB\nNetwork: ‹b›Tom ＆ Co‹/b›\nDisk: 186 GB free of 500 GB\n"
                                 "Temperature: CPU 52°C · GPU 48°C · SoC 45°C · SSD 38°C\nSystem power: 16.4 W");
    EXPECT_FALSE(Qt::mightBeRichText(all));
    EXPECT_EQ(statusDetails(readings, {}, MenuBarModule::disk).toStdString(), "Disk: 186 GB free of 500 GB");
    EXPECT_EQ(statusDetails(readings, {}, MenuBarModule::cpu), QString());
    EXPECT_EQ(statusDetails({}, {}, {}), QString());
    const Units chosen{.temperature = TemperatureUnit::fahrenheit, .memory = MemoryUnit::gib};
    EXPECT_EQ(statusDetails(readings, chosen, MenuBarModule::memory).toStdString(), "Memory: 10 GiB of 16 GiB");
    EXPECT_TRUE(statusDetails(readings, chosen, MenuBarModule::temperature).contains(QStringLiteral("CPU 126°F")));
}

} // namespace
} // namespace vantrix
