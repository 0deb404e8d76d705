#include "linux/status_area/status_item_on_bus.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

#include "linux/status_area/menu_types.h"

namespace vantrix {
namespace {

/// A host's event as EventGroup takes it: (isvu).
struct MenuEvent {
    int id = 0;
    QString kind;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.kind << QDBusVariant(0) << 0U;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent&) {
    return argument;
}

class DBusMenuTest : public StatusItemOnBus {
  protected:
    DBusMenuTest() {
        qDBusRegisterMetaType<MenuEvent>();
        qDBusRegisterMetaType<QList<MenuEvent>>();
        entries = {{u"Settings_1"_qs, QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] { ++settings; }},
                   {{}, {}, {}},
                   {u"Quit"_qs, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Q), [this] { ++quits; }}};
    }

    void startMenu(const char* process = "waybar") {
        menu = startOn(notifierHostNamed(process)).front();
        menu.path = host.property(menu, u"Menu"_qs).value<QDBusObjectPath>().path();
    }

    QDBusMessage ask(const QString& member, const QVariantList& arguments) {
        return host.call(menu, FakeStatusHost::menuInterface, member, arguments);
    }

    MenuNode layoutNow() {
        const auto reply = ask(u"GetLayout"_qs, {0, -1, QStringList()});
        return reply.arguments().size() == 2 ? qdbus_cast<MenuNode>(reply.arguments()[1]) : MenuNode();
    }

    static QString label(const MenuNode& node) { return node.properties.value(u"label"_qs).toString(); }

    static QVariant event(int id, const QString& kind) { return QVariant::fromValue(QList<MenuEvent>{{id, kind}}); }

    Item menu;
    int settings = 0;
    int quits = 0;
};

TEST_F(DBusMenuTest, LaysOutItsEntries) {
    startMenu();
    const MenuNode root = layoutNow();
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(root.properties.value(u"children-display"_qs).toString(), u"submenu"_qs);
    EXPECT_EQ(label(root.children[0]), u"Settings__1"_qs); // else the bar marks an access key
    EXPECT_EQ(root.children[1].properties.value(u"type"_qs).toString(), u"separator"_qs);
    const auto shortcut = [&](int i) {
        return qdbus_cast<MenuShortcut>(root.children[i].properties.value(u"shortcut"_qs));
    };
    EXPECT_EQ(shortcut(0), MenuShortcut({{u"Control"_qs, u"comma"_qs}}));
    EXPECT_EQ(shortcut(2), MenuShortcut({{u"Control"_qs, u"Shift"_qs, u"q"_qs}}));
    EXPECT_EQ(qdbus_cast<MenuNode>(ask(u"GetLayout"_qs, {0, 0, QStringList()}).arguments()[1]).children.size(), 0);
    const auto only = qdbus_cast<MenuNode>(ask(u"GetLayout"_qs, {3, -1, QStringList(u"label"_qs)}).arguments()[1]);
    EXPECT_EQ(only.id, 3);
    EXPECT_EQ(only.properties.keys(), QStringList(u"label"_qs));
}

TEST_F(DBusMenuTest, BeginsWithOpeningWhereAClickOpensTheMenu) {
    startMenu("gnome-shell");
    const MenuNode root = layoutNow();
    ASSERT_EQ(root.children.size(), 5);
    EXPECT_EQ(label(root.children[0]), u"Open Vantrix"_qs);
    EXPECT_EQ(root.children[1].properties.value(u"type"_qs).toString(), u"separator"_qs);
    ask(u"Event"_qs, {1, u"clicked"_qs, QVariant::fromValue(QDBusVariant(0)), 0U});
    ASSERT_TRUE(spinUntil([&] { return !clicks.empty(); }));
    EXPECT_EQ(clicks, std::vector{StatusClick::Button::left});
}

TEST_F(DBusMenuTest, PropertiesCanBeAskedForBeforeTheLayout) {
    startMenu();
    const auto reply = ask(u"GetProperty"_qs, {3, u"label"_qs});
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    EXPECT_EQ(reply.arguments()[0].value<QDBusVariant>().variant().toString(), u"Quit"_qs);
    const auto group = ask(u"GetGroupProperties"_qs, {QVariant::fromValue(QList<int>{1, 77, 2}), QStringList()});
    const auto found = qdbus_cast<QList<MenuProperties>>(group.arguments().value(0));
    ASSERT_EQ(found.size(), 2); // what is not there is left out
    EXPECT_EQ(found[1].id, 2);
    const auto version =
        host.call(menu, FakeStatusHost::propertiesInterface, u"Get"_qs, {FakeStatusHost::menuInterface, u"Version"_qs});
    EXPECT_EQ(version.arguments().value(0).value<QDBusVariant>().variant().toUInt(), 3U);
}

TEST_F(DBusMenuTest, EventsRunActions) {
    startMenu();
    layoutNow();
    ask(u"Event"_qs, {1, u"hovered"_qs, QVariant::fromValue(QDBusVariant(0)), 0U});
    ask(u"Event"_qs, {2, u"clicked"_qs, QVariant::fromValue(QDBusVariant(0)), 0U}); // a separator
    ask(u"Event"_qs, {1, u"clicked"_qs, QVariant::fromValue(QDBusVariant(0)), 0U});
    EXPECT_EQ(ask(u"EventGroup"_qs, {event(3, u"clicked"_qs)}).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(spinUntil([&] { return quits == 1; }));
    EXPECT_EQ(settings, 1);
}

TEST_F(DBusMenuTest, TellsThatItOpensAndReadsItsEntriesAnew) {
    startMenu();
    const QVariantList root{0};
    EXPECT_EQ(ask(u"AboutToShow"_qs, root).arguments(), QVariantList{true}); // nobody has read it yet
    EXPECT_EQ(menusOpened, 1);
    EXPECT_EQ(ask(u"AboutToShow"_qs, root).arguments(), QVariantList{false});
    entries.erase(entries.begin());
    EXPECT_EQ(ask(u"AboutToShow"_qs, root).arguments(), QVariantList{true});
    EXPECT_TRUE(awaitSignals(u"LayoutUpdated"_qs, 2));
    EXPECT_EQ(layoutNow().children.size(), 2);
    EXPECT_EQ(ask(u"AboutToShow"_qs, {2}).arguments(), QVariantList{false});
    EXPECT_EQ(menusOpened, 3);
    ask(u"Event"_qs, {0, u"opened"_qs, QVariant::fromValue(QDBusVariant(0)), 0U});
    const auto group = ask(u"AboutToShowGroup"_qs, {QVariant::fromValue(QList<int>{0, 9})});
    ASSERT_EQ(group.arguments().size(), 2);
    EXPECT_EQ(qdbus_cast<QList<int>>(group.arguments()[1]), QList<int>{9});
    EXPECT_EQ(menusOpened, 5);
}

TEST_F(DBusMenuTest, NonsenseGetsErrors) {
    startMenu();
    layoutNow();
    QVariant deep = 1;
    for (int i = 0; i < 60; ++i) // the bus itself lets no more than 64 through
        deep = QVariant::fromValue(QDBusVariant(deep));
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const struct {
        const char* name;
        QString member;
        QVariantList arguments;
        bool fine = false;
    } cases[] = {
        {"unknown method", u"Explode"_qs, {}},
        {"no arguments", u"GetLayout"_qs, {}},
        {"texts for numbers", u"GetLayout"_qs, {u"0"_qs, u"1"_qs, QStringList()}},
        {"unknown entry", u"GetLayout"_qs, {99, -1, QStringList()}},
        {"negative entry", u"GetLayout"_qs, {least, least, QStringList()}},
        {"greatest entry", u"GetLayout"_qs, {most, most, QStringList()}},
        {"endless depth", u"GetLayout"_qs, {0, most, QStringList()}, true},
        {"negative depth", u"GetLayout"_qs, {0, least, QStringList()}, true},
        {"property of no entry", u"GetProperty"_qs, {-1, u"label"_qs}},
        {"property that is not there", u"GetProperty"_qs, {1, u"colour"_qs}},
        {"number for a list", u"GetGroupProperties"_qs, {1, QStringList()}},
        {"list of texts for ids", u"AboutToShowGroup"_qs, {QStringList(u"0"_qs)}},
        {"unknown ids only", u"AboutToShowGroup"_qs, {QVariant::fromValue(QList<int>{-7, most})}},
        {"no ids", u"AboutToShowGroup"_qs, {QVariant::fromValue(QList<int>())}, true},
        {"about to show nothing", u"AboutToShow"_qs, {most}},
        {"event of no entry", u"Event"_qs, {44, u"clicked"_qs, QVariant::fromValue(QDBusVariant(0)), 0U}},
        {"event without its data", u"Event"_qs, {1, u"clicked"_qs}},
        {"event with deep data", u"Event"_qs, {1, u"noticed"_qs, deep, 0U}, true},
        {"unknown event", u"Event"_qs, {1, QString(10000, u'x'), QVariant::fromValue(QDBusVariant(0)), 0U}, true},
        {"events of no entry", u"EventGroup"_qs, {event(-1, u"clicked"_qs)}},
        {"no events", u"EventGroup"_qs, {QVariant::fromValue(QList<MenuEvent>())}, true},
        {"ids for events", u"EventGroup"_qs, {QVariant::fromValue(QList<int>{1})}},
    };
    for (const auto& c : cases) {
        const auto expected = c.fine ? QDBusMessage::ReplyMessage : QDBusMessage::ErrorMessage;
        const auto reply = ask(c.member, c.arguments);
        EXPECT_EQ(reply.type(), expected) << c.name;
        EXPECT_NE(reply.errorName(), u"org.freedesktop.DBus.Error.NoReply"_qs) << c.name;
    }
    EXPECT_EQ(settings + quits, 0);
    EXPECT_EQ(layoutNow().children.size(), 3);
}

} // namespace
} // namespace vantrix
