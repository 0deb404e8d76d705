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

TEST(ThemeColors, TextsAreReadableInBothAppearances) {
    for (const bool dark : {true, false}) {
        const ThemeColors colors = ThemeColors::of(dark, std::nullopt);
        const QColor card = over(colors.card, colors.window);
        const QColor control = over(colors.control, card);
        EXPECT_GE(contrast(over(colors.label, control), control), 4.5) << dark;
        for (const auto style : {&ThemeColors::label, &ThemeColors::secondary, &ThemeColors::tertiary})
            for (const QColor& ground : {colors.window, card})
                EXPECT_GE(contrast(over(colors.*style, ground), ground), 4.5) << dark;
        for (const auto role :
             {&ThemeColors::accent, &ThemeColors::orange, &ThemeColors::red, &ThemeColors::green, &ThemeColors::purple})
            EXPECT_GE(contrast(colors.readable(colors.*role), card), 4.5) << dark;
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
    EXPECT_EQ(ThemeColors::of(true, QColor(255, 120, 0)).accent, QColor(255, 120, 0)); // a good one stays as it is
}

class ThemeTest : public ::testing::Test {
  protected:
    ThemeTest() {
        QObject::connect(&theme, &Theme::changed, &theme, [this] { ++changes; });
    }
    ~ThemeTest() override { QApplication::setFont(usual); }

    static void setFontPixels(int pixels) {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }

    const QFont usual = QApplication::font();
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
    int changes = 0;
};

TEST_F(ThemeTest, TakesTheSystemsColoursWhereItNamesThem) {
    const ThemeColors own = theme.colors();
    ThemeColors expected = own;
    expected.orange = QColor(1, 0, 0);
    expected.red = QColor(2, 0, 0);
    expected.green = QColor(3, 0, 0);
    expected.purple = QColor(4, 0, 0);
    appearance.set({.colors = SystemColors{expected.orange, expected.red, expected.green, expected.purple}});
    EXPECT_EQ(theme.colors(), expected);
    appearance.set({});
    EXPECT_EQ(theme.colors(), own);
}

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
        setFontPixels(pixels);
        QCoreApplication::sendPostedEvents();
        EXPECT_NEAR(theme.textScale(), scale, 1e-9) << pixels;
        EXPECT_EQ(theme.font(10.0).pixelSize(), std::lround(10.0 * scale)) << pixels;
    }
    EXPECT_GT(changes, 0);
}

} // namespace
} // namespace vantrix
