#include "popover/popover_host.h"

#include <QApplication>
#include <QKeyEvent>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

TEST(PopoverHeight, LeavesAMarginButNeverBecomesUseless) {
    EXPECT_EQ(popoverHeight(1080.0), 1050);
    EXPECT_EQ(popoverHeight(400.0), 480);
    EXPECT_EQ(popoverHeight(899.5), 870);
    EXPECT_EQ(popoverHeight(0.0), 870); // no screen
}

TEST(PopoverPlace, StaysInTheVisibleAreaBesideTheItem) {
    const QRect visible(0, 30, 1000, 700); // a panel of 30 points at the top
    const QSize size(340, 200);
    struct Case {
        const char* name;
        QRect anchor;
        QRect expected;
    };
    const Case cases[] = {
        {"below a top panel, centred", {500, 0, 100, 30}, {379, 34, 340, 200}},
        {"pushed in from the right edge", {960, 0, 40, 30}, {660, 34, 340, 200}},
        {"pushed in from the left edge", {0, 0, 40, 30}, {0, 34, 340, 200}},
        {"above a bottom panel", {500, 730, 100, 30}, {379, 526, 340, 200}},
        {"beside a panel at the left", {0, 400, 30, 22}, {0, 426, 340, 200}},
        {"low on a panel at the left", {0, 700, 30, 22}, {0, 496, 340, 200}},
        {"an anchor off the screen", {-500, -500, 10, 10}, {0, 30, 340, 200}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(popoverPlace(size, c.anchor, visible), c.expected) << c.name;
}

class PopoverHostTest : public ::testing::Test {
  protected:
    PopoverHostTest() {
        auto widget = std::make_unique<QWidget>();
        view = widget.get();
        host = std::make_unique<PopoverHost>(std::move(widget));
    }

    const QRect anchor{100, 0, 50, 22};
    QWidget* view = nullptr;
    std::unique_ptr<PopoverHost> host;
};

TEST_F(PopoverHostTest, TogglesOpenAndShut) {
    host->toggle(anchor);
    EXPECT_TRUE(host->isShown());
    host->toggle(anchor);
    EXPECT_FALSE(host->isShown());
}

TEST_F(PopoverHostTest, TheClickThatClosedItByLandingOutsideDoesNotReopenIt) {
    host->show(anchor);
    view->hide(); // what the toolkit does on a press outside, which may be one on the status item
    host->toggle(anchor);
    EXPECT_FALSE(host->isShown());
}

TEST_F(PopoverHostTest, EscapeAndLosingTheFocusCloseIt) {
    host->show(anchor);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(view, &escape);
    EXPECT_FALSE(host->isShown());
    host->show(anchor);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(view, &deactivate);
    EXPECT_FALSE(host->isShown());
}

} // namespace
} // namespace vantrix
