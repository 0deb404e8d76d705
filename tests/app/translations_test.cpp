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
    struct Row {
        const char* locale;
        const char* settings;
    };
    for (const Row& row : {
             Row{"C", "Settings…"},
             Row{"en_US", "Settings…"},
             Row{"en_GB", "Settings…"},
             Row{"it_IT", "Impostazioni…"},
             Row{"it_CH", "Impostazioni…"},
             Row{"de_AT", "Einstellungen…"},
             Row{"fr_CA", "Paramètres…"},
             Row{"es_MX", "Ajustes…"},
             Row{"ja_JP", "設定…"},
             Row{"zh_CN", "设置…"},
             Row{"zh_SG", "设置…"},
             Row{"zh_Hans_HK", "设置…"},
             Row{"zh_TW", "Settings…"}, // written in other characters
             Row{"zh_HK", "Settings…"},
             Row{"zh_Hant", "Settings…"},
             Row{"pt_BR", "Settings…"},
             Row{"ar_EG", "Settings…"},
         }) {
        installTranslations(QLocale(QLatin1StringView(row.locale)));
        EXPECT_EQ(localized("Settings…"), row.settings) << row.locale;
        EXPECT_EQ(localized("No table has this."), "No table has this.") << row.locale;
    }
}

TEST_F(TranslationsTest, PluralsFollowTheLanguage) {
    struct Row {
        const char* locale;
        long long count;
        const char* text;
    };
    for (const Row& row : {Row{"C", 1, "1 second"}, Row{"en_US", 2, "2 seconds"}, Row{"pt_BR", 1, "1 second"},
                           Row{"it_IT", 1, "1 secondo"}, Row{"it_IT", 2, "2 secondi"}, Row{"it_IT", 0, "0 secondi"},
                           Row{"fr_FR", 0, "0 seconde"}, Row{"fr_FR", 2, "2 secondes"}, Row{"ja_JP", 1, "1秒"},
                           Row{"zh_CN", 30, "30 秒"}, Row{"de_DE", 8'000'000'001, "8000000001 Sekunden"}}) {
        installTranslations(QLocale(QLatin1StringView(row.locale)));
        EXPECT_EQ(localizedCount("%lld seconds", row.count), row.text) << row.locale;
    }
}

TEST_F(TranslationsTest, NumbersFollowTheLocale) {
    struct Row {
        const char* locale;
        const char* number;
    };
    for (const Row& row : {Row{"it_IT", "1,5"}, Row{"en_US", "1.5"}, Row{"de_CH", "1.5"}, Row{"pt_BR", "1,5"},
                           Row{"ar_EG", "1.5"}}) { // English words around it
        installTranslations(QLocale(QLatin1StringView(row.locale)));
        EXPECT_EQ(QLocale().toString(1.5).toStdString(), row.number) << row.locale;
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
