#include <cmath>

#include <QApplication>
#include <QDeadlineTimer>
#include <QMouseEvent>
#include <QPainterPath>
#include <QToolTip>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "popover/charts/core_bars.h"
#include "popover/charts/ring_gauge.h"
#include "popover/charts/segmented_bar.h"
#include "popover/charts/sparkline.h"
#include "popover/reading_text.h"
#include "views/drawn.h"
#include "views/theme.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

struct ChartsTest : ::testing::Test {
    fakes::FakeDefaults defaults;
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
};

TEST_F(ChartsTest, SparklineScale) {
    const struct {
        const char* name;
        Sparkline::Scale scale;
        std::vector<double> values;
        double top;
    } cases[] = {
        {"nothing yet", {{}, 100.0}, {}, 100.0},
        {"larger", {{}, 100.0}, {20.0, 250.0}, 250.0},
        {"fixed", {1.0, 100.0}, {2.0}, 1.0},
        {"all below zero", {{}, -5.0}, {-3.0}, 0.0},
    };
    for (const auto& c : cases) {
        Sparkline line(theme, {}, &ThemeColors::accent, c.scale, percentText);
        line.setValues(c.values, 2.0);
        EXPECT_EQ(line.top(), c.top) << c.name;
        drawn(line, {100, 34}, Qt::black); // and nothing divides by zero
    }
}

TEST_F(ChartsTest, SparklineEndsAtTheRightAndTellsItsValues) {
    Sparkline line(theme, QStringLiteral("GPU history"), &ThemeColors::accent, {1.0, 0.0}, percentText);
    EXPECT_EQ(line.accessibleText(), QStringLiteral("GPU history"));
    line.setValues(std::vector{0.4}, 2.0);
    EXPECT_GE(inkOf(drawn(line, {118, 34}, Qt::black), Qt::black).left(), 116);
    line.setValues(std::vector{0.4, 0.9, 0.1, 0.3}, 2.0);
    EXPECT_EQ(line.accessibleText(), QStringLiteral("GPU history: now 30%, lowest 10%, highest 90%"));
    EXPECT_EQ(line.textAt(118.0), QStringLiteral("30% · now"));
    EXPECT_EQ(line.textAt(114.3), QStringLiteral("90% · 4 s ago"));
    EXPECT_EQ(line.textAt(100.0), QString());
    line.setValues(std::vector(60, 0.5), 10.0);
    EXPECT_EQ(line.textAt(0.0), QStringLiteral("50% · 10 min ago"));
    QMouseEvent move(QEvent::MouseMove, QPointF(114.3, 5), QPointF(114.3, 5), Qt::NoButton, {}, {});
    const QImage before = drawn(line, {118, 34}, Qt::black);
    QApplication::sendEvent(&line, &move);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("50% · 20 s ago"));
    EXPECT_NE(drawn(line, {118, 34}, Qt::black), before) << "the value is marked";
    QToolTip::hideText();
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
}

TEST_F(ChartsTest, RingGaugeClamps) {
    RingGauge ring(theme, defaults, QStringLiteral("CPU load"), 8.0);
    for (const auto& [fraction, shown] : {std::pair(1.3, 1.0), {-0.2, 0.0}, {std::nan(""), 0.0}, {0.4, 0.4}}) {
        ring.setFraction(fraction);
        EXPECT_EQ(ring.shownFraction(), shown); // not on screen: nothing to animate
        EXPECT_FALSE(ring.isAnimating());
    }
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
