#include <optional>

#include <QGuiApplication>

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "fakes/memory_defaults_store.h"
#include "linux/status_area/linux_status_item.h"
#include "linux/x11/fake_tray.h"

namespace vantrix {
namespace {

using fakes::becomes;
using fakes::FakeTray;
using fakes::shows;
using Kind = LinuxStatusItem::Kind;

MenuBarItem item(const char* label, const char* value, MenuBarModule module) {
    return {.label = label, .lines = {value}, .fraction = 0.5, .reference = "100%", .module = module};
}

StatusContent row(int count) {
    static const MenuBarItem items[] = {item("CPU", "12%", MenuBarModule::cpu),
                                        item("RAM", "48%", MenuBarModule::memory),
                                        item("SSD", "83%", MenuBarModule::disk)};
    return {.items = {items, items + count}, .accessibilityLabel = "row"};
}

struct TrayRow : testing::Test {
    void start(FakeTray& tray) {
        tray.claim();
        item.show(content);
        ASSERT_TRUE(becomes(tray, [&] { return tray.icon != 0 && item.kind() == Kind::tray; }));
    }

    MemoryDefaults kept;
    fakes::FakeAppearance appearance;
    StatusContent content = row(3);
    std::vector<StatusClick> clicks;
    LinuxStatusItem item{{.clicked = [this](const StatusClick& click) { clicks.push_back(click); }},
                         kept.defaults,
                         appearance,
                         {.bus = std::make_shared<BusLink>(std::nullopt),
                          .stripDelay = std::chrono::milliseconds(50),
                          .trayPatience = std::chrono::milliseconds(1200),
                          .lookInterval = std::chrono::milliseconds(0)}};
};

TEST_F(TrayRow, DocksAndPaintsWithTheRoomItNeeds) {
    content = row(1);
    FakeTray tray;
    start(tray);
    for (const int count : {1, 3, 2, 0}) {
        SCOPED_TRACE(testing::Message() << count << " modules");
        content = row(count);
        item.show(content);
        const QRect place(QPoint(304, 4), StatusRow(content).size() + QSize(8, 0));
        EXPECT_TRUE(becomes(tray, [&] { return tray.rootRect(tray.icon) == place; }));
        EXPECT_TRUE(becomes(tray, [&] { return item.anchor() == QRect(place.x(), 0, place.width(), 30); }));
        EXPECT_TRUE(becomes(tray, [&] { return shows(tray.picture(), Qt::white); }));
        EXPECT_EQ(item.kind(), Kind::tray);
        if (count < 2)
            continue;
        const QImage before = tray.picture();
        content.items[1].lines = {"100%"};
        content.accessibilityLabel = "another row";
        item.show(content);
        const QRect firstModule(0, 0, 30, before.height());
        EXPECT_NE(tray.picture(), before) << "what changed is there at once";
        EXPECT_EQ(tray.picture().copy(firstModule), before.copy(firstModule)) << "all else stays";
        item.show(row(count));
        EXPECT_EQ(tray.picture(), before);
    }
}

TEST_F(TrayRow, GivesWayToTheStripWhereOnlyASquareIsGranted) {
    FakeTray tray(FakeTray::square);
    tray.claim();
    item.show(content);
    EXPECT_TRUE(becomes(tray, [&] { return tray.icon != 0; }));
    EXPECT_TRUE(becomes(tray, [&] { return item.kind() == Kind::strip; }));
    EXPECT_TRUE(becomes(tray, [&] { return tray.icon == 0; })) << "the square is still in the tray";
}

TEST_F(TrayRow, GivesABusyTrayTime) {
    bool isLaidOut = false;
    FakeTray tray([&](QSize wanted) { return isLaidOut ? wanted : FakeTray::square(wanted); });
    tray.claim();
    item.show(content);
    EXPECT_FALSE(becomes(
        tray, [&] { return item.kind() != Kind::none; }, std::chrono::milliseconds(800)));
    isLaidOut = true;
    tray.layOut();
    EXPECT_TRUE(becomes(tray, [&] { return item.kind() == Kind::tray; }));
}

TEST_F(TrayRow, IsNotMappedBeforeTheTrayTookItIn) {
    FakeTray tray;
    tray.welcoming = false;
    tray.claim();
    item.show(content);
    ASSERT_TRUE(becomes(tray, [&] { return tray.asked != 0; }));
    // A map request now under way is served before this round trip's answer.
    QCoreApplication::processEvents();
    xcbRootRect(xcbConnection(), tray.asked);
    EXPECT_FALSE(tray.isMapped(tray.asked));
    tray.takeIn();
    EXPECT_TRUE(becomes(tray, [&] { return tray.isMapped(tray.icon) && item.kind() == Kind::tray; }));
}

TEST_F(TrayRow, FollowsTheTrayThroughARestart) {
    std::optional<FakeTray> tray(std::in_place);
    start(*tray);
    tray.reset();
    EXPECT_TRUE(spinUntil([&] { return item.kind() == Kind::strip; }));
    FakeTray next;
    next.tellColors(QColor(0, 230, 120));
    next.claim();
    EXPECT_TRUE(becomes(next, [&] { return item.kind() == Kind::tray; }));
    EXPECT_TRUE(becomes(next, [&] { return shows(next.picture(), QColor(0, 230, 120)); }));
}

TEST_F(TrayRow, LeavesATrayThatCutsTheWiderRow) {
    content = row(1);
    const int most = StatusRow(content).size().width();
    FakeTray tray([most](QSize wanted) { return QSize(std::min(wanted.width(), most), wanted.height()); });
    start(tray);
    item.show(row(3));
    EXPECT_TRUE(becomes(tray, [&] { return item.kind() == Kind::strip; }));
}

TEST_F(TrayRow, PassesClicksOnWhenTheButtonIsReleased) {
    FakeTray tray;
    start(tray);
    const struct {
        const char* name;
        std::uint8_t button;
        int modifiers;
        StatusClick::Button expected;
    } table[] = {
        {"left", 1, 0, StatusClick::Button::left},
        {"right", 3, 0, StatusClick::Button::right},
        {"left with Control", 1, XCB_MOD_MASK_CONTROL, StatusClick::Button::left},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        clicks.clear();
        tray.mouse(XCB_BUTTON_PRESS, tray.icon, {20, 10}, row.button, row.modifiers);
        const int held = row.modifiers | XCB_BUTTON_MASK_1 << (row.button - 1);
        EXPECT_TRUE(becomes(tray, [] { return QGuiApplication::mouseButtons() != Qt::NoButton; }));
        EXPECT_TRUE(clicks.empty());
        tray.mouse(XCB_BUTTON_RELEASE, tray.icon, {20, 10}, row.button, held);
        ASSERT_TRUE(becomes(tray, [&] { return clicks.size() == 1; }));
        EXPECT_EQ(clicks[0].button, row.expected);
        EXPECT_EQ(clicks[0].control, row.modifiers != 0);
        EXPECT_EQ(clicks[0].module, MenuBarModule::cpu);
    }
}

TEST_F(TrayRow, TakesItsColoursFromThePanel) {
    const struct {
        const char* name;
        QColor panel;
        std::optional<QColor> text;
        QColor expected;
    } table[] = {
        {"light panel", QColor(235, 235, 235), {}, QColor(40, 40, 40)},
        {"told", Qt::black, QColor(0, 230, 120), QColor(0, 230, 120)},
        {"told, but not readable on this panel", QColor(240, 240, 240), QColor(255, 255, 255), QColor(40, 40, 40)},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        FakeTray tray(FakeTray::all, row.panel);
        start(tray);
        if (row.text)
            tray.tellColors(*row.text);
        EXPECT_TRUE(becomes(tray, [&] {
            const QImage picture = tray.picture();
            return shows(picture, row.expected) && shows(picture, row.panel, 2);
        }));
    }
}

TEST_F(TrayRow, StaysReadableWhereThePanelTurnsDarkAndSaysNothing) {
    const QColor light(240, 220, 160);
    FakeTray tray(FakeTray::all, light);
    tray.tellColors(QColor(40, 40, 40));
    start(tray);
    tray.paint(QColor(40, 40, 40));
    EXPECT_TRUE(becomes(tray, [&] {
        item.show(content); // a pass after which nothing is another number
        return shows(tray.picture(), Qt::white) && !shows(tray.picture(), light, 2);
    }));
}

} // namespace
} // namespace vantrix
