#include "app/translations.h"

#include <gmock/gmock.h>

#include "support/localization.h"

namespace vantrix {
namespace {

TEST(PlatformWords, SpeakOfComputersDesktopsAndTheirPanels) {
    const QLocale before;
    for (const char* locale : {"C", "it", "de", "fr", "es", "ja", "zh_CN"}) {
        installTranslations(QLocale(QLatin1StringView(locale)));
        for (const char* text :
             {"GPU, Sensors and Battery only appear on Macs that report them.",
              "Temperatures are not available on this Mac.", "Only %@ free on the startup disk.",
              "Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.", "Menu Bar",
              "Bars, rings and the menu bar turn orange and red above these values.",
              "Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just "
              "its "
              "icon."}) {
            EXPECT_NE(localized(text), text) << locale;
            EXPECT_THAT(localized(text), testing::Not(testing::ContainsRegex("Mac|→|turned off|[Mm]en|メニュー|菜单")))
                << locale;
        }
    }
    installTranslator(nullptr);
    QLocale::setDefault(before);
}

} // namespace
} // namespace vantrix
