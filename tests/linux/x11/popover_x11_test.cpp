#include <QApplication>
#include <QScreen>
#include <QWindow>

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "linux/x11/fake_tray.h"
#include "popover/popover_host.h"
#include "views/theme.h"

namespace vantrix {
namespace {

/// No compositor runs on this screen, and no window manager.
class PopoverOnScreen : public testing::Test {
  protected:
    void SetUp() override {
        host.show(anchor);
        window = static_cast<xcb_window_t>(view->window()->winId());
        ASSERT_TRUE(spinUntil([&] { return mouse.isMapped(window) && QApplication::activePopupWidget(); }));
    }

    const QRect anchor{600, 0, 80, 22};
    QWidget* view = nullptr;
    xcb_window_t window = XCB_NONE;
    fakes::FakeTray mouse; // only lends its connection
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
    PopoverHost host{theme, [this] {
                         auto made = std::make_unique<QWidget>();
                         view = made.get();
                         return made;
                     }};
};

TEST_F(PopoverOnScreen, StandsBelowTheItemWithItsCornersCutOff) {
    EXPECT_TRUE(spinUntil([&] { return mouse.rootRect(window) == QRect(469, 30, 340, 480); }));
    EXPECT_FALSE(view->window()->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(view->window()->mask().contains(QPoint(170, 0)));
    EXPECT_EQ(view->window()->windowOpacity(), 1.0) << "without a compositor there is nothing to fade";
}

TEST_F(PopoverOnScreen, OnlyAClickOutsideClosesIt) {
    // The popover has the mouse to itself: a press anywhere arrives at it, told from its corner.
    const auto press = [&](QPoint at) { mouse.mouse(XCB_BUTTON_PRESS, window, at, 1); };
    press({170, 300});
    ASSERT_TRUE(spinUntil([] { return QGuiApplication::mouseButtons() != Qt::NoButton; }));
    EXPECT_TRUE(host.isShown());
    press({-100, 300});
    EXPECT_TRUE(spinUntil([&] { return !host.isShown(); }));
    EXPECT_TRUE(spinUntil([&] { return !mouse.isMapped(window); }));
}

TEST_F(PopoverOnScreen, GetsTheMouseOnceAPanelThatHadItLetsGo) {
    host.close();
    ASSERT_TRUE(spinUntil([&] { return mouse.grabMouse(); }));
    host.show(anchor);
    mouse.releaseMouse();
    bool isFree = true;
    for (int look = 0; isFree && look < 4; ++look) { // between looks, or they would be in the way
        spinUntil([] { return false; }, std::chrono::milliseconds(200));
        isFree = mouse.grabMouse();
        mouse.releaseMouse();
    }
    EXPECT_FALSE(isFree);
}

class Item : public StatusItem {
  public:
    void show(const StatusContent&) override {}
    QRect anchor() const override { return {600, 0, 80, 22}; }
    bool placeIsKnown() const override { return true; }
};

/// There the X server is asked for everything that it can give, as the compositor gives pop-ups nothing.
TEST_F(PopoverOnScreen, UnderWaylandItTakesKeyboardAndMouse) {
    host.close();
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    const Item item;
    host.show(item);
    qunsetenv("WAYLAND_DISPLAY");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const auto windows = QGuiApplication::topLevelWindows();
    EXPECT_TRUE(std::any_of(windows.begin(), windows.end(), [&](const QWindow* field) {
        return field->isVisible() && field->geometry() == screen.adjusted(0, 0, 0, -1);
    }));
    ASSERT_TRUE(spinUntil([] { return QGuiApplication::focusWindow() != nullptr; }));
    mouse.focusRoot();
    EXPECT_TRUE(spinUntil([&] { return !host.isShown(); }));
}

} // namespace
} // namespace vantrix
