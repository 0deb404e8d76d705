#include "linux/status_area/status_item_on_bus.h"

#include <QDBusObjectPath>

#include "linux/status_area/menu_types.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

struct DBusMenuTest : StatusItemOnBus {
    DBusMenuTest() {
        entries = {{u"Settings_1"_s, QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] { ++settings; }},
                   {{}, {}, {}},
                   {u"Quit"_s, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Q), [this] { ++quits; }}};
    }

    void startMenu(const char* process = "waybar") {
        menu = startOn(notifierHostNamed(process)).front();
        menu.path = host.property(menu, u"Menu"_s).value<QDBusObjectPath>().path();
    }

    QDBusMessage ask(const QString& member, const QVariantList& arguments) {
        return host.call(menu, FakeStatusHost::menuInterface, member, arguments);
    }

    MenuNode layoutNow() {
        const auto reply = ask(u"GetLayout"_s, {0, -1, QStringList()});
        return reply.arguments().size() == 2 ? qdbus_cast<MenuNode>(reply.arguments()[1]) : MenuNode();
    }

    static MenuShortcut shortcut(const MenuNode& root, int entry) {
        return qdbus_cast<MenuShortcut>(root.children.value(entry).properties.value(u"shortcut"_s));
    }

    static QString label(const MenuNode& node) { return node.properties.value(u"label"_s).toString(); }

    QDBusMessage tell(int id, const QString& kind, const QVariant& data = 0) {
        return ask(u"Event"_s, {id, kind, QVariant::fromValue(QDBusVariant(data)), 0U});
    }

    static QVariant event(int id, const QString& kind) { return QVariant::fromValue(QList<MenuEvent>{{id, kind}}); }

    Item menu;
    int settings = 0;
    int quits = 0;
};

TEST_F(DBusMenuTest, LaysOutItsEntries) {
    startMenu();
    const MenuNode root = layoutNow();
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(root.properties.value(u"children-display"_s).toString(), u"submenu"_s);
    EXPECT_EQ(label(root.children[0]), u"Settings__1"_s); // else the bar marks an access key
    EXPECT_EQ(root.children[1].properties.value(u"type"_s).toString(), u"separator"_s);
    EXPECT_EQ(shortcut(root, 0), MenuShortcut({{u"Control"_s, u"comma"_s}}));
    EXPECT_EQ(shortcut(root, 2), MenuShortcut({{u"Control"_s, u"Shift"_s, u"q"_s}}));
}

TEST_F(DBusMenuTest, WritesShortcutsAsItsHostReadsThem) {
    for (const auto& [host, comma] : {std::pair("lxqt-panel", u","_s), {"kded6", u","_s}, {"panel-6", u"comma"_s}}) {
        this->host.items.clear();
        startMenu(host);
        EXPECT_EQ(shortcut(layoutNow(), 0), MenuShortcut({{u"Control"_s, comma}})) << host;
    }
}

TEST_F(DBusMenuTest, BeginsWithOpeningWhereAClickOpensTheMenu) {
    startMenu("gnome-shell");
    const MenuNode root = layoutNow();
    ASSERT_EQ(root.children.size(), 5);
    EXPECT_EQ(label(root.children[0]), u"Open Vantrix"_s);
    EXPECT_EQ(root.children[1].properties.value(u"type"_s).toString(), u"separator"_s);
    tell(1, u"clicked"_s);
    ASSERT_TRUE(spinUntil([&] { return !clicks.empty(); }));
    EXPECT_EQ(clicks, std::vector{StatusClick::Button::left});
}

TEST_F(DBusMenuTest, PropertiesCanBeAskedForBeforeTheLayout) {
    startMenu();
    const auto reply = ask(u"GetProperty"_s, {3, u"label"_s});
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    EXPECT_EQ(reply.arguments()[0].value<QDBusVariant>().variant().toString(), u"Quit"_s);
    const auto group = ask(u"GetGroupProperties"_s, {QVariant::fromValue(QList<int>{1, 77, 2}), QStringList()});
    const auto found = qdbus_cast<QList<MenuProperties>>(group.arguments().value(0));
    ASSERT_EQ(found.size(), 2); // what is not there is left out
    EXPECT_EQ(found[1].id, 2);
    EXPECT_EQ(host.property(menu, u"Version"_s, FakeStatusHost::menuInterface).toUInt(), 3U);
}

TEST_F(DBusMenuTest, EventsRunActions) {
    startMenu();
    layoutNow();
    tell(1, u"hovered"_s);
    tell(2, u"clicked"_s); // a separator
    tell(1, u"clicked"_s);
    EXPECT_EQ(ask(u"EventGroup"_s, {event(3, u"clicked"_s)}).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(spinUntil([&] { return quits == 1; }));
    EXPECT_EQ(settings, 1);
}

TEST_F(DBusMenuTest, TellsThatItOpensAndReadsItsEntriesAnew) {
    startMenu();
    const QVariantList root{0};
    EXPECT_EQ(ask(u"AboutToShow"_s, root).arguments(), QVariantList{true}); // nobody has read it yet
    EXPECT_EQ(menusOpened, 1);
    EXPECT_EQ(ask(u"AboutToShow"_s, root).arguments(), QVariantList{false});
    entries.erase(entries.begin());
    EXPECT_EQ(ask(u"AboutToShow"_s, root).arguments(), QVariantList{true});
    EXPECT_TRUE(awaitSignals(u"LayoutUpdated", 2));
    EXPECT_EQ(layoutNow().children.size(), 2);
    EXPECT_EQ(ask(u"AboutToShow"_s, {2}).arguments(), QVariantList{false});
    EXPECT_EQ(menusOpened, 3);
    tell(0, u"opened"_s);
    EXPECT_EQ(menusOpened, 4);
}

} // namespace
} // namespace vantrix
