#include "views/theme.h"

#include <QApplication>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"

namespace vantrix {
namespace {

TEST(Contrast, IsThatOfRelativeLuminances) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-4);
    EXPECT_NEAR(contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01); // the grey known to miss 4.5 by a hair
}

TEST(ThemeColors, TextsAreReadableInEveryAppearance) {
    for (const auto& [dark, high] : {std::pair(true, false), {false, false}, {true, true}, {false, true}}) {
        const ThemeColors colors = ThemeColors::of(dark, std::nullopt, high);
        const double least = high ? 7.0 : 4.5;
        const QColor card = over(colors.card, colors.window);
        const QColor control = over(colors.control, card);
        EXPECT_GE(contrast(over(colors.label, control), control), least) << dark;
        for (const auto style : {&ThemeColors::label, &ThemeColors::secondary, &ThemeColors::tertiary})
            for (const QColor& ground : {colors.window, card})
                EXPECT_GE(contrast(over(colors.*style, ground), ground), least) << dark;
        const double disabled = contrast(over(colors.disabled, card), card);
        EXPECT_TRUE(disabled > (high ? 3.0 : 1.9) && disabled < 0.6 * contrast(over(colors.tertiary, card), card))
            << disabled;
        for (const auto role : {&ThemeColors::accent, &ThemeColors::orange, &ThemeColors::red, &ThemeColors::green,
                                &ThemeColors::purple}) {
            EXPECT_GE(contrast(colors.readable(colors.*role), card), 4.5) << dark;
            EXPECT_GE(contrast(colors.*role, card), high ? 3.0 : 1.9) << dark;
        }
        for (const auto edge : {&ThemeColors::outline, &ThemeColors::separator})
            EXPECT_EQ(contrast(over(colors.*edge, card), card) >= 3.0, high) << dark;
    }
}

TEST(ThemeColors, AnyAccentOfTheDesktopStaysVisible) {
    for (const QColor& accent : {QColor(Qt::yellow), QColor(Qt::white), QColor(Qt::black), QColor(30, 30, 33)}) {
        for (const bool dark : {true, false}) {
            const ThemeColors colors = ThemeColors::of(dark, accent);
            EXPECT_GE(contrast(colors.accent, over(colors.card, colors.window)), 1.9) << accent.name().toStdString();
            EXPECT_GE(contrast(ThemeColors::textOn(colors.accent), colors.accent), 4.5) << accent.name().toStdString();
            EXPECT_GE(contrast(ThemeColors::markOn(colors.accent), colors.accent), 2.5) << accent.name().toStdString();
        }
    }
}

struct ThemeTest : ::testing::Test {
    ThemeTest() {
        QObject::connect(&theme, &Theme::changed, &theme, [this] { ++changes; });
    }
    ~ThemeTest() override { QApplication::setFont(usual); }

    const QFont usual = QApplication::font();
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
    int changes = 0;
};

TEST_F(ThemeTest, FollowsTheDesktop) {
    appearance.set({.dark = true, .accent = QColor(Qt::magenta), .reducesMotion = true});
    EXPECT_TRUE(theme.isDark());
    EXPECT_TRUE(theme.reducesMotion());
    EXPECT_EQ(theme.colors().accent, QColor(Qt::magenta));
    EXPECT_EQ(changes, 1);
    Q_EMIT appearance.changed(); // nothing new
    EXPECT_EQ(changes, 1);
}

TEST_F(ThemeTest, OnlyClearlyLargerTextsEnlargeIt) {
    const std::pair<int, double> cases[] = {{12, 1.0}, {16, 1.0}, {20, 1.5}, {80, 3.0}};
    for (const auto& [pixels, scale] : cases) {
        QFont font = usual;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        QCoreApplication::sendPostedEvents();
        EXPECT_NEAR(theme.textScale(), scale, 1e-9) << pixels;
    }
    EXPECT_GT(changes, 0);
}

} // namespace
} // namespace vantrix
