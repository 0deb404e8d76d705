#include "app/translations.h"

#include <gmock/gmock.h>

#include "support/localization.h"

namespace vantrix {
namespace {

TEST(PlatformWords, SpeakOfComputersAndDesktops) {
    const QLocale before;
    installTranslations(QLocale::c());
    EXPECT_EQ(localized("Temperatures are not available on this Mac."),
              "Temperatures are not available on this computer.");
    for (const char* locale : {"C", "it", "de", "fr", "es", "ja", "zh_CN", "pt"}) {
        installTranslations(QLocale(QLatin1StringView(locale)));
        for (const char* text :
             {"GPU, Sensors and Battery only appear on Macs that report them.",
              "Temperatures are not available on this Mac.", "Only %@ free on the startup disk.",
              "Notifications are turned off for Vantrix. Enable them in System Settings → Notifications."}) {
            EXPECT_NE(localized(text), text) << locale;
            EXPECT_THAT(localized(text),
                        ::testing::Not(::testing::AnyOf(::testing::HasSubstr("Mac"), ::testing::HasSubstr("→"))))
                << locale;
        }
    }
    installTranslator(nullptr);
    QLocale::setDefault(before);
}

} // namespace
} // namespace vantrix
