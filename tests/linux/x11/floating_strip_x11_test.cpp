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

/// No tray claims the screen; `mouse` only lends its connection.
struct StripOnScreen : testing::Test {
    void show() {
        item.emplace(StatusItem::Handlers{.clicked = [this](const StatusClick& click) { clicks.push_back(click); }},
                     kept.defaults, appearance,
                     StatusSurroundings{.bus = std::make_shared<BusLink>(std::nullopt),
                                        .stripDelay = std::chrono::milliseconds(10)});
        item->show({.items = {{.label = "CPU", .lines = {"12%"}, .reference = "100%"}}});
        ASSERT_TRUE(spinUntil([&] { return item->kind() == LinuxStatusItem::Kind::strip; }));
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* strip = qobject_cast<FloatingStrip*>(widget))
                window = static_cast<xcb_window_t>(strip->winId());
        ASSERT_TRUE(spinUntil([&] { return mouse.isMapped(window); }));
    }

    void drag(QPoint distance) {
        mouse.mouse(XCB_BUTTON_PRESS, window, {10, 10}, 1);
        mouse.mouse(XCB_MOTION_NOTIFY, window, QPoint(10, 10) + distance, 0, XCB_BUTTON_MASK_1);
        mouse.mouse(XCB_BUTTON_RELEASE, window, QPoint(10, 10) + distance, 1, XCB_BUTTON_MASK_1);
    }

    QRect place() const { return mouse.rootRect(window); }
    QRect area() const { return QGuiApplication::primaryScreen()->availableGeometry(); }

    MemoryDefaults kept;
    fakes::FakeAppearance appearance;
    std::vector<StatusClick> clicks;
    fakes::FakeTray mouse;
    std::optional<LinuxStatusItem> item;
    xcb_window_t window = XCB_NONE;
};

TEST_F(StripOnScreen, KeepsThePlaceItWasDraggedTo) {
    show();
    const QRect dropped = place().translated(-200, 120);
    drag({-200, 120});
    EXPECT_TRUE(spinUntil([&] { return kept.store->writes == 3; }));
    EXPECT_TRUE(spinUntil([&] { return place() == dropped; }));
    EXPECT_EQ(item->anchor(), dropped);
    EXPECT_TRUE(clicks.empty()) << "a drag is no click";
    item.reset();
    show();
    EXPECT_TRUE(spinUntil([&] { return place() == dropped; }));
}

TEST_F(StripOnScreen, StaysOnAScreenSmallerThanTheRememberedPlace) {
    kept.defaults.set(QStringLiteral("statusStripX"), -90000.0);
    kept.defaults.set(QStringLiteral("statusStripY"), 90000.0);
    show();
    EXPECT_TRUE(spinUntil([&] { return place().bottomLeft() == area().bottomLeft() + QPoint(4, -4); }));
}

TEST_F(StripOnScreen, ASmallMoveIsStillAClick) {
    show();
    drag({2, 1});
    EXPECT_TRUE(spinUntil([&] { return clicks.size() == 1; }));
    EXPECT_EQ(kept.store->writes, 0);
}

} // namespace
} // namespace vantrix
