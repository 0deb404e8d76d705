#include "linux/status_area/status_item_on_bus.h"

#include <sys/prctl.h>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

using std::chrono::milliseconds;

class StatusNotifierTest : public StatusItemOnBus {
  protected:
    /// A host of that name, told about changes without delay.
    static NotifierHost quick(const char* processName, milliseconds pace = milliseconds(0)) {
        NotifierHost host = notifierHostNamed(processName);
        host.pace = pace;
        return host;
    }

    /// No colour is lighter than its alpha channel.
    static bool isPremultiplied(const QByteArray& argb) {
        for (qsizetype i = 0; i < argb.size(); ++i)
            if (static_cast<uchar>(argb[i]) > static_cast<uchar>(argb[i / 4 * 4]))
                return false;
        return true;
    }

    QDBusMessage ask(const Item& at, const QString& member, const QVariantList& arguments) {
        return host.call(at, FakeStatusHost::itemInterface, member, arguments);
    }

    QString title(const Item& at) { return host.property(at, u"Title"_s).toString(); }
};

TEST_F(StatusNotifierTest, EachHostGetsTheItemsAndPicturesItShows) {
    const struct {
        const char* process;
        QStringList ids;
        bool wide = false;
        bool label = false;
        bool premultiplied = false;
    } cases[] = {
        {"unheard-of", {u"vantrix-cpu"_s, u"vantrix-memory"_s}},
        {"xfce4-panel", {u"vantrix-memory"_s, u"vantrix-cpu"_s}}, // puts new items before those it has
        {"swaybar", {u"vantrix-memory"_s, u"vantrix-cpu"_s}, false, false, true},
        {"waybar", {u"vantrix"_s}, true},
        {"gnome-shell", {u"vantrix"_s}, false, true},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.process);
        host.items.clear();
        const auto items = startOn(quick(expected.process), static_cast<std::size_t>(expected.ids.size()));
        QStringList ids;
        for (const Item& at : items) {
            const QVariantMap properties = host.properties(at);
            ids << properties.value(u"Id"_s).toString();
            const NotifierPixmaps pictures = icon(properties);
            ASSERT_EQ(pictures.size(), 2);
            for (int i : {0, 1}) {
                EXPECT_EQ(pictures[i].height, 22 * (i + 1));
                EXPECT_EQ(pictures[i].bytes.size(), pictures[i].width * pictures[i].height * 4);
                EXPECT_LT(pictures[i].bytes.count('\0'), pictures[i].bytes.size()) << "nothing is drawn";
                EXPECT_EQ(isPremultiplied(pictures[i].bytes), expected.premultiplied);
            }
            EXPECT_EQ(pictures[1].width, 2 * pictures[0].width);
            EXPECT_EQ(pictures[0].width > 44, expected.wide);
            EXPECT_EQ(pictures[0].width == 22, !expected.wide);
            EXPECT_EQ(properties.contains(u"XAyatanaLabel"_s), expected.label);
        }
        EXPECT_EQ(ids, expected.ids);
        host.settle(items[0]);
        EXPECT_EQ(host.items.size(), items.size()) << "an item that nobody asked for";
    }
}

TEST_F(StatusNotifierTest, HostIsKnownByItsProcess) {
    const auto layoutOfThisProcess = [] { return notifierHostOfProcess(static_cast<uint>(getpid())).layout; };
    EXPECT_EQ(layoutOfThisProcess(), NotifierLayout::tiles) << "no host that anybody knows";
    ::prctl(PR_SET_NAME, "waybar");
    EXPECT_EQ(layoutOfThisProcess(), NotifierLayout::wide);
    ::prctl(PR_SET_NAME, "app_tests");
    EXPECT_EQ(notifierHostOfProcess(0).layout, NotifierLayout::tiles);
}

TEST_F(StatusNotifierTest, PicturesAreStraightArgbMostSignificantByteFirst) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(255, 0, 51, 255));
    image.setPixelColor(1, 0, QColor(255, 255, 255, 102));
    EXPECT_EQ(toNotifierPixmap(image), (NotifierPixmap{2, 1, QByteArray::fromHex("ffff003366ffffff")}));
}

TEST_F(StatusNotifierTest, ClicksArriveWithTheirButtonAndPlace) {
    const Item at = startOn(quick("unheard-of"), 2).back();
    for (const auto& member : {u"Activate"_s, u"SecondaryActivate"_s, u"ContextMenu"_s})
        EXPECT_EQ(ask(at, member, {300, 2}).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(spinUntil([&] { return clicks.size() == 3; }));
    using Button = StatusClick::Button;
    EXPECT_EQ(clicks, (std::vector{Button::left, Button::middle, Button::right}));
    EXPECT_THAT(modules, testing::Each(MenuBarModule::memory));
    EXPECT_TRUE(item->anchor().contains(300, 2));
    // No panel is there: not a place to believe.
    ask(at, u"Activate"_s, {300, 300});
    ASSERT_TRUE(spinUntil([&] { return clicks.size() == 4; }));
    EXPECT_FALSE(item->anchor().contains(300, 300));
}

TEST_F(StatusNotifierTest, OnlyChangesAreSignalled) {
    const auto items = startOn(quick("unheard-of"), 2);
    item->show(rowOf(12));
    host.settle(items[0]);
    EXPECT_TRUE(host.signalsHeard.empty());

    item->show(rowOf(13)); // of two tiles only the first changes
    ASSERT_TRUE(awaitSignals(u"NewIcon", 1));
    host.settle(items[0]);
    for (const QDBusMessage& signal : host.signalsHeard)
        EXPECT_EQ(signal.path(), items[0].path);
    EXPECT_EQ(title(items[0]), u"Vantrix 1: CPU 13%"_s);
    const auto toolTip = [&](const Item& at) {
        return qdbus_cast<NotifierToolTip>(host.property(at, u"ToolTip"_s)).title;
    };
    EXPECT_EQ(toolTip(items[0]), u"details"_s);
    EXPECT_EQ(toolTip(items[1]), u"RAM 50%"_s) << "there are none of this module";
}

/// waybar shows the title in place of an empty tool tip, so both have to go, the tool tip first.
TEST_F(StatusNotifierTest, NoToolTipCoversThePopover) {
    const auto items = startOn(notifierHostNamed("waybar"));
    const auto texts = [&] {
        const QVariantMap all = host.properties(items[0]);
        return std::pair(qdbus_cast<NotifierToolTip>(all[u"ToolTip"_s]).title, all[u"Title"_s].toString());
    };
    const auto shown = texts();
    item->popoverShown(true);
    ASSERT_TRUE(awaitSignals(u"NewToolTip", 1));
    EXPECT_EQ(texts(), std::pair(QString(), shown.second));
    ASSERT_TRUE(awaitSignals(u"NewTitle", 1));
    EXPECT_EQ(texts(), std::pair(QString(), QString()));
    item->popoverShown(false);
    ASSERT_TRUE(awaitSignals(u"NewToolTip", 2));
    EXPECT_EQ(texts(), shown);
}

TEST_F(StatusNotifierTest, TitlesSortLikeTheRowAndIdentifiersStayWithTheirModules) {
    startOn(quick("plasmashell"), 2);
    StatusContent row = rowOf(12);
    std::swap(row.items[0], row.items[1]);
    item->show(row);
    ASSERT_TRUE(awaitItems(4));
    const Item first = host.items[2];
    EXPECT_EQ(title(first), u"Vantrix 1: RAM 50%"_s);
    EXPECT_EQ(host.property(first, u"Id"_s).toString(), u"vantrix-memory"_s);
    EXPECT_EQ(title(host.items[3]), u"Vantrix 2: CPU 12%"_s);
}

TEST_F(StatusNotifierTest, LabelledHostHearsOfTheTextAlone) {
    const Item at = startOn(quick("gnome-shell")).front();
    EXPECT_EQ(host.property(at, u"XAyatanaLabel"_s).toString(), u"CPU 12%  RAM 50%"_s);
    item->show(rowOf(13));
    ASSERT_TRUE(awaitSignals(u"XAyatanaNewLabel", 1));
    EXPECT_EQ(host.signalsHeard.size(), 1u);
    EXPECT_EQ(host.signalsHeard[0].arguments(), QVariantList({u"CPU 13%  RAM 50%"_s, u"CPU 100%  RAM 100%"_s}));
}

TEST_F(StatusNotifierTest, OtherModulesTakeOtherItems) {
    startOn(quick("unheard-of"), 2);
    StatusContent row = rowOf(12);
    row.items[1].label = "CHG";
    item->show(row);
    ASSERT_TRUE(awaitSignals(u"NewIcon", 1));
    host.settle(host.items[1]);
    EXPECT_EQ(host.items.size(), 2u) << "another label is the same item";
    row.items.pop_back();
    item->show(row);
    ASSERT_TRUE(awaitItems(3));
    EXPECT_EQ(host.property(host.items[2], u"Id"_s).toString(), u"vantrix-cpu"_s);
    EXPECT_TRUE(host.properties(host.items[1]).isEmpty()); // gone with its connection
}

} // namespace
} // namespace vantrix
