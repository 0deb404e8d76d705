#include <cmath>

#include <QApplication>
#include <QDeadlineTimer>
#include <QPainterPath>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "popover/charts/core_bars.h"
#include "popover/charts/ring_gauge.h"
#include "popover/charts/segmented_bar.h"
#include "popover/charts/sparkline.h"
#include "popover/charts/stat_row.h"
#include "views/drawn.h"
#include "views/theme.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

class ChartsTest : public ::testing::Test {
  protected:
    QImage drawn(QWidget& view, QSize size) { return vantrix::drawn(view, size, theme.colors().window, 2.0); }

    /// `color` as it looks on the window, and what is drawn at a place in points.
    std::string onWindow(ColorRole role) const {
        return over(theme.colors().*role, theme.colors().window).name().toStdString();
    }
    static std::string at(const QImage& image, double x, double y) {
        return image.pixelColor(static_cast<int>(x * 2.0), static_cast<int>(y * 2.0)).name().toStdString();
    }

    fakes::FakeDefaults defaults;
    fakes::FakeAppearance appearance{{.dark = true}};
    Theme theme{appearance};
};

TEST_F(ChartsTest, SparklineScale) {
    const struct {
        const char* name;
        Sparkline::Scale scale;
        std::vector<double> values;
        double top;
    } cases[] = {
        {"nothing yet", {{}, 100.0}, {}, 100.0},          {"idle", {{}, 100.0}, {0.0, 0.0}, 100.0},
        {"larger", {{}, 100.0}, {20.0, 250.0}, 250.0},    {"fixed", {1.0, 100.0}, {2.0}, 1.0},
        {"a fixed one below zero", {-1.0, 0.0}, {}, 0.0}, {"all below zero", {{}, -5.0}, {-3.0}, 0.0},
    };
    for (const auto& c : cases) {
        Sparkline line(theme, {}, &ThemeColors::accent, c.scale);
        line.setValues(c.values);
        EXPECT_EQ(line.top(), c.top) << c.name;
        drawn(line, {100, 34}); // and nothing divides by zero
    }
}

TEST_F(ChartsTest, SparklineDrawsAShortHistoryAtTheLeft) {
    Sparkline line(theme, {}, &ThemeColors::accent, {1.0, 0.0});
    line.setValues(std::vector(10, 0.5));
    const QImage image = drawn(line, {118, 34}); // two points a step: ten values end at 18
    EXPECT_EQ(at(image, 10, 17), onWindow(&ThemeColors::accent));
    EXPECT_NE(at(image, 16, 30), onWindow(&ThemeColors::window)); // the area below
    EXPECT_EQ(at(image, 24, 17), onWindow(&ThemeColors::window));
}

TEST_F(ChartsTest, SparklineNeverSwingsBeyondItsValues) {
    const std::vector<QPointF> points = {{0, 0}, {1, 0}, {2, 10}, {3, 10}, {4, 9}, {5, 0}, {6, 0}};
    const QPainterPath curve = monotoneCurve(points);
    for (int i = 0; i <= 600; ++i) {
        const double y = curve.pointAtPercent(i / 600.0).y();
        EXPECT_GE(y, -1e-6);
        EXPECT_LE(y, 10.0 + 1e-6);
    }
}

TEST_F(ChartsTest, CoreBarsStayInTheirTracks) {
    CoreBars bars(theme, defaults);
    bars.setValues(std::vector{0.0, 0.5, 1.5});
    EXPECT_GT(bars.bar(0, 96.0).height(), 1.0) << "the stub of an idle core";
    EXPECT_EQ(bars.bar(1, 96.0).height(), bars.track(1, 96.0).height() / 2.0);
    EXPECT_EQ(bars.bar(2, 96.0), bars.track(2, 96.0));
    const QImage image = drawn(bars, {96, bars.heightForWidth(96)});
    EXPECT_EQ(at(image, 15, 10), onWindow(&ThemeColors::quaternary));
    EXPECT_EQ(at(image, 81, 10), onWindow(&ThemeColors::red));
    bars.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(at(drawn(bars, image.deviceIndependentSize().toSize()), 15, 10), onWindow(&ThemeColors::red));
}

TEST_F(ChartsTest, ManyCoresStayReadable) {
    for (const std::size_t cores : {48u, 64u, 128u, 256u, 1024u}) {
        CoreBars bars(theme, defaults);
        bars.setValues(std::vector(cores, 0.5));
        constexpr double width = 292.0;
        const int height = bars.heightForWidth(static_cast<int>(width));
        for (std::size_t i = 0; i < cores; ++i) {
            const QRectF track = bars.track(i, width);
            ASSERT_GE(track.width(), 3.0) << cores;
            ASSERT_GE(track.height(), 20.0) << cores;
            ASSERT_TRUE(QRectF(-0.01, 0, width + 0.02, height).contains(track)) << cores << ' ' << i;
            ASSERT_FALSE(i > 0 && track.intersects(bars.track(i - 1, width))) << cores;
        }
    }
}

TEST_F(ChartsTest, SegmentsStandSideBySide) {
    SegmentedBar bar(theme, QStringLiteral("Memory in use"));
    bar.setSegments({{0, 0.5, &ThemeColors::accent}, {1, 0.01, &ThemeColors::orange}, {2, 1.5, &ThemeColors::purple}});
    EXPECT_THAT(bar.places(100.0), ElementsAre(QRectF(0, 0, 48, 8), QRectF(50, 0, 0, 8), QRectF(52, 0, 98, 8)));
    bar.setSegments({{0, 0.5, &ThemeColors::accent}, {1, 0.25, &ThemeColors::orange}});
    EXPECT_EQ(bar.accessibleFraction(), 0.75);
    const QImage image = drawn(bar, {100, 8});
    EXPECT_EQ(at(image, 20, 4), onWindow(&ThemeColors::accent));
    EXPECT_EQ(at(image, 60, 4), onWindow(&ThemeColors::orange));
    EXPECT_EQ(at(image, 90, 4), onWindow(&ThemeColors::quaternary));
    bar.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(at(drawn(bar, {100, 8}), 80, 4), onWindow(&ThemeColors::accent));
}

TEST_F(ChartsTest, AStatRowTakesASecondLineRatherThanOverlap) {
    StatRow row(theme, QStringLiteral("Interface"), StatRow::Lead::mark(&ThemeColors::purple));
    row.setValue(QStringLiteral("eth0"));
    const int one = row.heightForWidth(200);
    const QImage image = drawn(row, {200, one});
    EXPECT_EQ(at(image, 3.5, one / 2.0 + 0.5), onWindow(&ThemeColors::purple));
    EXPECT_EQ(at(image, 9, one / 2.0), onWindow(&ThemeColors::window));
    row.setValue(QStringLiteral("enx00e04c680123 of the docking station"));
    EXPECT_GE(row.heightForWidth(200), 2 * one - 1);
    EXPECT_EQ(row.heightForWidth(1000), one);
    EXPECT_EQ(row.accessibleText(), QStringLiteral("Interface: enx00e04c680123 of the docking station"));
}

TEST_F(ChartsTest, RingGaugeClampsAndRunsClockwiseFromTheTop) {
    RingGauge ring(theme, defaults, QStringLiteral("CPU load"), 8.0);
    for (const auto& [fraction, shown] : {std::pair(1.3, 1.0), {-0.2, 0.0}, {std::nan(""), 0.0}, {0.4, 0.4}}) {
        ring.setFraction(fraction);
        EXPECT_EQ(ring.shownFraction(), shown); // not on screen: nothing to animate
        EXPECT_FALSE(ring.isAnimating());
    }
    const QImage image = drawn(ring, {76, 76});
    EXPECT_EQ(at(image, 72, 38), onWindow(&ThemeColors::accent));    // three o'clock
    EXPECT_EQ(at(image, 4, 38), onWindow(&ThemeColors::quaternary)); // nine o'clock
}

TEST_F(ChartsTest, RingGaugeSpringsToItsValueAndThenRests) {
    RingGauge ring(theme, defaults, QStringLiteral("CPU load"), 8.0);
    ring.resize(76, 76);
    ring.show();
    ring.setFraction(0.8);
    EXPECT_TRUE(ring.isAnimating());
    EXPECT_LT(ring.shownFraction(), 0.1);
    const QDeadlineTimer deadline(20'000);
    while (ring.isAnimating() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(ring.shownFraction(), 0.8);
    ring.setFraction(0.8);
    EXPECT_FALSE(ring.isAnimating());
    ring.setFraction(0.2);
    ring.hide(); // nobody looks
    EXPECT_FALSE(ring.isAnimating());
    EXPECT_EQ(ring.shownFraction(), 0.2);
    appearance.set({.reducesMotion = true});
    ring.show();
    ring.setFraction(0.6);
    EXPECT_FALSE(ring.isAnimating());
}

} // namespace
} // namespace vantrix
