#include <QApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "fakes/memory_defaults_store.h"
#include "linux/status_area/floating_strip.h"
#include "linux/status_area/linux_status_item.h"
#include "linux/x11/fake_tray.h"

namespace vantrix {
namespace {

using fakes::becomes;
using fakes::FakeTray;
using Kind = LinuxStatusItem::Kind;

/// No tray claims the screen; `mouse` only lends its connection.
class StripOnScreen : public testing::Test {
  protected:
    struct Shown {
        explicit Shown(StripOnScreen& test)
            : item({.clicked = [&test](const StatusClick& click) { test.clicks.push_back(click); }}, test.kept.defaults,
                   test.appearance, {.busAddress = std::nullopt, .stripDelay = std::chrono::milliseconds(10)}) {
            item.show({.items = {{.label = "CPU", .lines = {"12%"}, .reference = "100%"}}});
            const bool up = becomes(nullptr, [&] { return item.kind() == Kind::strip; });
            EXPECT_TRUE(up);
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* strip = qobject_cast<FloatingStrip*>(widget))
                    window = static_cast<xcb_window_t>(strip->winId());
            EXPECT_TRUE(becomes(nullptr, [&] { return test.mouse.isMapped(window); }));
        }
        LinuxStatusItem item;
        xcb_window_t window = XCB_NONE;
    };

    void drag(xcb_window_t window, QPoint distance) {
        mouse.mouse(XCB_BUTTON_PRESS, window, {10, 10}, 1);
        mouse.mouse(XCB_MOTION_NOTIFY, window, QPoint(10, 10) + distance, 0, XCB_BUTTON_MASK_1);
        mouse.mouse(XCB_BUTTON_RELEASE, window, QPoint(10, 10) + distance, 1, XCB_BUTTON_MASK_1);
    }

    QRect area() const { return QGuiApplication::primaryScreen()->availableGeometry(); }

    MemoryDefaults kept;
    fakes::FakeAppearance appearance;
    std::vector<StatusClick> clicks;
    FakeTray mouse;
};

TEST_F(StripOnScreen, KeepsThePlaceItWasDraggedTo) {
    QRect dropped;
    {
        Shown shown(*this);
        const QRect before = mouse.rootRect(shown.window);
        dropped = before.translated(-200, 120);
        drag(shown.window, {-200, 120});
        EXPECT_TRUE(becomes(nullptr, [&] { return kept.store->writes == 3; }));
        EXPECT_TRUE(becomes(nullptr, [&] { return mouse.rootRect(shown.window) == dropped; }));
        EXPECT_EQ(shown.item.anchor(), dropped);
        EXPECT_TRUE(clicks.empty()) << "a drag is no click";
    }
    Shown again(*this);
    EXPECT_TRUE(becomes(nullptr, [&] { return mouse.rootRect(again.window) == dropped; }));
}

TEST_F(StripOnScreen, ComesBackFromBeyondTheEdge) {
    Shown shown(*this);
    drag(shown.window, {5000, -700});
    EXPECT_TRUE(becomes(nullptr, [&] { return mouse.rootRect(shown.window).topRight() == area().topRight(); }));
}

TEST_F(StripOnScreen, StaysOnAScreenSmallerThanTheRememberedPlace) {
    kept.defaults.set(QStringLiteral("statusStripX"), -90000.0);
    kept.defaults.set(QStringLiteral("statusStripY"), 90000.0);
    Shown shown(*this);
    EXPECT_TRUE(becomes(nullptr, [&] { return mouse.rootRect(shown.window).bottomLeft() == area().bottomLeft(); }));
}

TEST_F(StripOnScreen, ASmallMoveIsStillAClick) {
    Shown shown(*this);
    drag(shown.window, {2, 1});
    EXPECT_TRUE(becomes(nullptr, [&] { return clicks.size() == 1; }));
    EXPECT_EQ(kept.store->writes, 0);
}

} // namespace
} // namespace vantrix
