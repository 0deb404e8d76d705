#include <climits>

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QGuiApplication>
#include <QScreen>

#include "app/status_details.h"
#include "fuzz/targets.h"
#include "linux/status_area/menu_types.h"
#include "linux/status_area/status_item_on_bus.h"
#include "monitor/readings.h"

namespace vantrix::fuzz {
namespace {

using namespace Qt::StringLiterals;

/// What may be asked for, each with the arguments that it takes.
const QStringList members = u"GetLayout:iias GetGroupProperties:aias GetProperty:is Event:isvu EventGroup:a(isvu) "
                            "AboutToShow:i AboutToShowGroup:ai Activate:ii ContextMenu:ii SecondaryActivate:ii "
                            "Scroll:is Get:ss GetAll:s Set:nothing Explode:nothing"_s.split(u' ');

QVariant variant(const QVariant& value, int depth) {
    return depth == 0 ? value : QVariant::fromValue(QDBusVariant(variant(value, depth - 1)));
}

/// The status item in a panel that asks for anything.
struct Panel : StatusItemOnBus {
    Panel() {
        entries = {{}, {}, {u"Quit"_s, QKeySequence(Qt::Key_Q), [] {}}};
        NotifierHost waybar = notifierHostNamed("waybar");
        waybar.pace = {};
        at[0] = startOn(waybar).front();
        at[1] = {at[0].service, host.property(at[0], u"Menu"_s).value<QDBusObjectPath>().path()};
    }

    void rename(const QString& name) {
        host.signalsHeard.clear();
        Readings readings;
        readings.networkInfo.ssid = '_' + name.toStdString();
        details = statusDetails(readings, {}, {});
        entries[0].title = QString(u'_' + name).remove(QChar());
        item->show(rowOf(++row % 100)); // else nothing is told anew
        host.call(at[1], host.menuInterface, u"AboutToShow"_s, {0});
    }

    /// All that does not take these arguments refuses them.
    void request(Input& input) {
        static const QStringList interfaces{host.menuInterface, host.itemInterface, host.propertiesInterface, {}};
        static const QVariantList values =
            QVariantList{0, 1, 2, 3, 4, -1, INT_MAX, INT_MIN, 0U}
            << u"clicked"_s << u"opened"_s << u"label"_s << u"Title"_s << interfaces[0] << interfaces[1]
            << QString(10'000, u'x') << QVariant(QStringList()) << QVariant(QStringList(u"label"_s)) << variant(0, 1)
            << variant(0, 60) // the bus itself lets no more than 64 through
            << QVariant::fromValue(QList<int>()) << QVariant::fromValue(QList<int>{0, 77, INT_MIN, 2})
            << QVariant::fromValue(QList<MenuEvent>{{3, u"clicked"_s}, {77, u"clicked"_s}, {-1, u"opened"_s}});
        const Item& object = input.oneOf(at);
        const QString& interface = input.oneOf(interfaces);
        const QString& member = input.oneOf(members);
        const QString name = member.section(u':', 0, 0);
        QVariantList arguments;
        QString given = name + u':';
        for (int count = input.byte() % 5; count > 0; --count) {
            arguments << input.oneOf(values);
            given += QString::fromLatin1(QDBusMetaType::typeToSignature(arguments.last().metaType()));
        }
        const QDBusMessage reply = host.call(object, interface, name, arguments);
        const bool isAnswer = reply.type() == QDBusMessage::ReplyMessage;
        const QDBusError error(reply);
        EXPECT_TRUE(isAnswer ? given == member || name == u"Scroll" : error.isValid() && error.type() != error.NoReply)
            << qPrintable(given);
        const bool hasId = member.contains(u":i") && object.path == at[1].path;
        EXPECT_TRUE(!isAnswer || !hasId || arguments[0].toUInt() <= 3) << qPrintable(given);
    }

    /// Whatever was asked, item and menu tell what they should.
    void TestBody() override {
        const auto layout = host.call(at[1], host.menuInterface, u"GetLayout"_s, {0, -1, QStringList()}).arguments();
        const auto children = qdbus_cast<MenuNode>(layout.value(1)).children;
        ASSERT_EQ(children.size(), 3);
        EXPECT_EQ(children[0].properties[u"label"_s].toString().replace(u"__"_s, u"_"_s), entries[0].title);
        EXPECT_EQ(qdbus_cast<NotifierToolTip>(host.property(at[0], u"ToolTip"_s)).title, details);
        EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(item->anchor()));
    }

    Item at[2];
    int row = 0;
};

} // namespace

/// A network's name, which goes into menu and tool tip, then requests: one byte each for object, interface, member,
/// number of arguments and every argument.
void statusItem(std::string_view bytes) {
    static Panel* panel = nullptr;
    if (!panel)
        qAddPostRoutine([] { delete panel; });
    panel = panel ? panel : new Panel;
    Input input(bytes);
    panel->rename(input.string());
    while (!input.isEmpty())
        panel->request(input);
    panel->TestBody();
}

} // namespace vantrix::fuzz
