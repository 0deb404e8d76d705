#include "app/translations.h"

#include <gmock/gmock.h>

#include "support/localization.h"

namespace vantrix {
namespace {

TEST(PlatformWords, SpeakOfComputersAndDesktops) {
    const QLocale before;
    for (const char* locale : {"C", "it", "de", "fr", "es", "ja", "zh_CN"}) {
        installTranslations(QLocale(QLatin1StringView(locale)));
        for (const char* text :
             {"GPU, Sensors and Battery only appear on Macs that report them.",
              "Temperatures are not available on this Mac.", "Only %@ free on the startup disk.",
              "Notifications are turned off for Vantrix. Enable them in System Settings → Notifications."}) {
            EXPECT_NE(localized(text), text) << locale;
            EXPECT_THAT(localized(text), testing::Not(testing::ContainsRegex("Mac|→"))) << locale;
        }
    }
    installTranslator(nullptr);
    QLocale::setDefault(before);
}

} // namespace
} // namespace vantrix
