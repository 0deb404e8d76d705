#include "app/translations.h"

#include <QGuiApplication>

#include <gmock/gmock.h>

#include "support/localization.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

class TranslationsTest : public ::testing::Test {
  protected:
    ~TranslationsTest() override {
        installTranslator(nullptr);
        QLocale::setDefault(defaultBefore_);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

  private:
    const QLocale defaultBefore_;
};

TEST_F(TranslationsTest, LanguageFollowsTheLocale) {
    const std::pair<const char*, const char*> rows[] = {
        {"C", "Settings…"},       {"en_GB", "Settings…"},  {"it_CH", "Impostazioni…"},
        {"zh_SG", "设置…"},       {"zh_Hans_HK", "设置…"}, {"zh_TW", "Settings…"}, // written in other characters
        {"zh_Hant", "Settings…"}, {"ar_EG", "Settings…"},
    };
    for (const auto& [locale, settings] : rows) {
        installTranslations(QLocale(QLatin1StringView(locale)));
        EXPECT_EQ(localized("Settings…"), settings) << locale;
        EXPECT_EQ(localized("No table has this."), "No table has this.") << locale;
    }
}

TEST_F(TranslationsTest, PluralsFollowTheLanguage) {
    struct Row {
        const char* locale;
        long long count;
        const char* text;
    };
    for (const Row& row : {Row{"C", 1, "1 second"}, Row{"pt_BR", 2, "2 seconds"}, Row{"it_IT", 0, "0 secondi"},
                           Row{"it_IT", 1, "1 secondo"}, Row{"fr_FR", 0, "0 seconde"}, Row{"ja_JP", 1, "1秒"},
                           Row{"de_DE", 8'000'000'001, "8000000001 Sekunden"}}) {
        installTranslations(QLocale(QLatin1StringView(row.locale)));
        EXPECT_EQ(localizedCount("%lld seconds", row.count), row.text) << row.locale;
    }
}

TEST_F(TranslationsTest, AnEnglishInterfaceIsLaidOutFromTheLeftUnlessAskedOtherwise) {
    installTranslations(QLocale(u"ar_EG"_s));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft); // as the toolkit does for -reverse
    installTranslations(QLocale(u"it_IT"_s));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

} // namespace
} // namespace vantrix
