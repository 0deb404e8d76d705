#include "linux/status_area/status_item_on_bus.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QXmlStreamReader>

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

    QString errorOf(const Item& at, const QString& interface, const QString& member, const QVariantList& arguments) {
        const QDBusMessage reply = host.call(at, interface, member, arguments);
        EXPECT_EQ(reply.type(), QDBusMessage::ErrorMessage) << qPrintable(member);
        return reply.errorName().section(u'.', -1);
    }
};

struct HostCase {
    const char* process;
    std::size_t items;
    bool wide;
    bool label;
};

class EveryHost : public StatusNotifierTest, public ::testing::WithParamInterface<HostCase> {};

TEST_P(EveryHost, GetsThePicturesItShows) {
    const HostCase& expected = GetParam();
    const auto items = startOn(quick(expected.process), expected.items);
    for (const Item& at : items) {
        const QVariantMap properties = host.properties(at);
        const NotifierPixmaps pictures = icon(properties);
        ASSERT_EQ(pictures.size(), 2);
        for (int i : {0, 1}) {
            EXPECT_EQ(pictures[i].height, 22 * (i + 1));
            EXPECT_EQ(pictures[i].bytes.size(), pictures[i].width * pictures[i].height * 4);
            EXPECT_GT(std::count_if(pictures[i].bytes.begin(), pictures[i].bytes.end(), [](char c) { return c != 0; }),
                      0);
        }
        EXPECT_EQ(pictures[1].width, 2 * pictures[0].width);
        EXPECT_EQ(pictures[0].width > 44, expected.wide);
        EXPECT_EQ(pictures[0].width == 22, !expected.wide);
        EXPECT_EQ(properties.contains(QStringLiteral("XAyatanaLabel")), expected.label);
        EXPECT_EQ(properties.contains(QStringLiteral("XAyatanaLabelGuide")), expected.label);
    }
    // No item is left over that nobody asked for.
    host.settle(items[0]);
    EXPECT_EQ(host.items.size(), expected.items);
}

INSTANTIATE_TEST_SUITE_P(Hosts, EveryHost,
                         ::testing::Values(HostCase{"unheard-of", 2, false, false}, HostCase{"kded5", 2, false, false},
                                           HostCase{"waybar", 1, true, false},
                                           HostCase{"notification-ar", 1, true, false},
                                           HostCase{"gnome-shell", 1, false, true}),
                         [](const auto& row) {
                             std::string name = row.param.process;
                             std::erase(name, '-');
                             return name;
                         });

TEST_F(StatusNotifierTest, HostIsKnownByItsProcess) {
    start();
    surroundings.hostOfProcess = notifierHostOfProcess; // this process is no host that anybody knows
    item = std::make_unique<LinuxStatusItem>(handlers(), defaults, appearance, surroundings);
    item->show(rowOf(12));
    EXPECT_TRUE(awaitKind(Kind::notifier));
    EXPECT_EQ(notifierHostOfProcess(static_cast<uint>(getpid())).layout, NotifierLayout::tiles);
    EXPECT_EQ(notifierHostOfProcess(0).layout, NotifierLayout::tiles);
}

TEST_F(StatusNotifierTest, TilesComeInOrderAndByTheirModule) {
    for (const char* process : {"unheard-of", "xfce4-panel"}) {
        host.items.clear();
        const auto items = startOn(quick(process), 2);
        QStringList ids;
        for (const Item& at : items)
            ids << host.property(at, QStringLiteral("Id")).toString();
        if (std::string_view(process) == "xfce4-panel") // puts new items before those it has
            std::reverse(ids.begin(), ids.end());
        EXPECT_EQ(ids, QStringList({QStringLiteral("vantrix-cpu"), QStringLiteral("vantrix-memory")})) << process;
    }
}

TEST_F(StatusNotifierTest, PicturesAreStraightArgbMostSignificantByteFirst) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(255, 0, 51, 255));
    image.setPixelColor(1, 0, QColor(255, 255, 255, 102));
    const NotifierPixmap pixmap = toNotifierPixmap(image);
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.toHex(), "ffff003366ffffff");
}

TEST_F(StatusNotifierTest, TextsCarryTheRow) {
    const Item at = startOn(quick("waybar")).front();
    const QVariantMap properties = host.properties(at);
    const QString row = QStringLiteral("CPU 12%, RAM 50%");
    EXPECT_EQ(properties[QStringLiteral("Title")].toString(), row);
    EXPECT_EQ(qdbus_cast<NotifierToolTip>(properties[QStringLiteral("ToolTip")]).title, row);
    EXPECT_EQ(properties[QStringLiteral("Menu")].value<QDBusObjectPath>().path(),
              QStringLiteral("/StatusNotifierItem/Menu"));
    EXPECT_EQ(properties[QStringLiteral("Status")].toString(), QStringLiteral("Active"));
}

TEST_F(StatusNotifierTest, DescribesWhatItHas) {
    const Item at = startOn(quick("gnome-shell")).front();
    const QVariantMap properties = host.properties(at);
    const auto reply =
        host.call(at, QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"));
    QXmlStreamReader xml(reply.arguments().value(0).toString());
    QHash<QString, QString> described;
    bool inItem = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const auto name = xml.attributes().value(QStringLiteral("name")).toString();
        if (xml.name() == u"interface")
            inItem = name == FakeStatusHost::itemInterface;
        if (inItem && xml.name() == u"property")
            described[name] = xml.attributes().value(QStringLiteral("type")).toString();
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    EXPECT_EQ(described.size(), properties.size());
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const QVariant value = host.property(at, it.key());
        const QString type = value.metaType() == QMetaType::fromType<QDBusArgument>()
                                 ? value.value<QDBusArgument>().currentSignature()
                                 : QString::fromLatin1(QDBusMetaType::typeToSignature(value.metaType()));
        EXPECT_EQ(described.value(it.key()), type) << qPrintable(it.key());
    }
}

TEST_F(StatusNotifierTest, WrongCallsGetErrors) {
    const Item at = startOn(quick("waybar")).front();
    const QString properties = FakeStatusHost::propertiesInterface;
    const QString ours = FakeStatusHost::itemInterface;
    const struct {
        const char* name;
        QString interface, member;
        QVariantList arguments;
        const char* error;
    } cases[] = {
        {"no such property", properties, u"Get"_s, {ours, u"Nonsense"_s}, "UnknownProperty"},
        {"label where none is shown", properties, u"Get"_s, {ours, u"XAyatanaLabel"_s}, "UnknownProperty"},
        {"property of another interface", properties, u"Get"_s, {u"a.b"_s, u"Title"_s}, "UnknownProperty"},
        {"too few arguments", properties, u"Get"_s, {ours}, "InvalidArgs"},
        {"arguments of another kind", properties, u"Get"_s, {1, 2}, "InvalidArgs"},
        {"all of a number", properties, u"GetAll"_s, {7}, "InvalidArgs"},
        {"writing",
         properties,
         u"Set"_s,
         {ours, u"Title"_s, QVariant::fromValue(QDBusVariant(1))},
         "PropertyReadOnly"},
        {"no such method", ours, u"Explode"_s, {}, "UnknownMethod"},
        {"no such method of properties", properties, u"Explode"_s, {}, "UnknownMethod"},
        {"click without a place", ours, u"Activate"_s, {}, "InvalidArgs"},
        {"click at a text", ours, u"ContextMenu"_s, {u"1"_s, u"2"_s}, "InvalidArgs"},
        {"no such interface", u"a.b"_s, u"Activate"_s, {1, 2}, "UnknownInterface"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(errorOf(at, c.interface, c.member, c.arguments), QLatin1StringView(c.error)) << c.name;
    EXPECT_EQ(host.call({at.service, u"/Elsewhere"_s}, ours, u"Activate"_s, {1, 2}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_TRUE(clicks.empty());
    EXPECT_EQ(host.properties(at).value(u"Status"_s).toString(), u"Active"_s);
}

TEST_F(StatusNotifierTest, ClicksArriveWithTheirButtonAndPlace) {
    const Item at = startOn(quick("unheard-of"), 2).front();
    for (const auto& member : {u"Activate"_s, u"SecondaryActivate"_s, u"ContextMenu"_s})
        EXPECT_EQ(host.call(at, FakeStatusHost::itemInterface, member, {300, 2}).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(spinUntil([&] { return clicks.size() == 3; }));
    using Button = StatusClick::Button;
    EXPECT_EQ(clicks, (std::vector{Button::left, Button::middle, Button::right}));
    EXPECT_TRUE(item->anchor().contains(300, 2));
    // No panel is there: not a place to believe.
    host.call(at, FakeStatusHost::itemInterface, u"Activate"_s, {300, 300});
    ASSERT_TRUE(spinUntil([&] { return clicks.size() == 4; }));
    EXPECT_FALSE(item->anchor().contains(300, 300));
    for (const auto& member : {u"Scroll"_s, u"ProvideXdgActivationToken"_s})
        EXPECT_EQ(host.call(at, FakeStatusHost::itemInterface, member, {u"x"_s}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(clicks.size(), 4u);
}

TEST_F(StatusNotifierTest, OnlyChangesAreSignalled) {
    const auto items = startOn(quick("unheard-of"), 2);
    item->show(rowOf(12));
    host.settle(items[0]);
    EXPECT_TRUE(host.signalsHeard.empty());

    item->show(rowOf(13)); // of two tiles only the first changes
    ASSERT_TRUE(awaitSignals(u"NewToolTip"_s, 1));
    ASSERT_EQ(host.count(u"NewIcon"_s), 1);
    for (const auto& signal : host.signalsHeard)
        EXPECT_EQ(signal.path, items[0].path);
    EXPECT_EQ(host.property(items[0], u"Title"_s).toString(), u"CPU 13%, RAM 50%"_s);
    EXPECT_EQ(host.property(items[1], u"Title"_s).toString(), u"RAM 50%"_s);
}

TEST_F(StatusNotifierTest, LabelledHostHearsOfTheTextAlone) {
    const Item at = startOn(quick("gnome-shell")).front();
    EXPECT_EQ(host.property(at, u"XAyatanaLabel"_s).toString(), u"CPU 12%  RAM 50%"_s);
    EXPECT_EQ(host.property(at, u"XAyatanaLabelGuide"_s).toString(), u"CPU 100%  RAM 100%"_s);
    item->show(rowOf(13));
    ASSERT_TRUE(awaitSignals(u"XAyatanaNewLabel"_s, 1));
    EXPECT_EQ(host.signalsHeard.size(), 1u);
    EXPECT_EQ(host.signalsHeard[0].arguments, QVariantList({u"CPU 13%  RAM 50%"_s, u"CPU 100%  RAM 100%"_s}));
}

TEST_F(StatusNotifierTest, ManyChangesBecomeOneSignal) {
    const Item at = startOn(quick("waybar", milliseconds(200))).front();
    for (int cpu = 13; cpu < 60; ++cpu)
        item->show(rowOf(cpu));
    ASSERT_TRUE(spinUntil([&] { return host.property(at, u"Title"_s).toString() == u"CPU 59%, RAM 50%"_s; }));
    host.settle(at);
    EXPECT_GE(host.count(u"NewIcon"_s), 1);
    EXPECT_LE(host.signalsHeard.size(), 2u); // this host fetches the tooltip along with the icon
}

TEST_F(StatusNotifierTest, AnotherLabelIsTheSameItem) {
    const auto items = startOn(quick("unheard-of"), 2);
    StatusContent charging = rowOf(12);
    charging.items[1].label = "CHG";
    item->show(charging);
    ASSERT_TRUE(awaitSignals(u"NewIcon"_s, 1));
    host.settle(items[1]);
    EXPECT_EQ(host.items.size(), 2u); // nobody registered anew
}

TEST_F(StatusNotifierTest, OtherModulesTakeOtherItems) {
    startOn(quick("unheard-of"), 2);
    StatusContent one = rowOf(12);
    one.items.pop_back();
    item->show(one);
    ASSERT_TRUE(awaitItems(3));
    EXPECT_EQ(host.property(host.items[2], u"Id"_s).toString(), u"vantrix-cpu"_s);
    EXPECT_TRUE(host.properties(host.items[1]).isEmpty()); // gone with its connection
    item->show({});
    ASSERT_TRUE(awaitItems(4));
    const QVariantMap gauge = host.properties(host.items[3]);
    EXPECT_EQ(gauge.value(u"Title"_s).toString(), u"Vantrix"_s);
    EXPECT_EQ(icon(gauge).size(), 2);
}

} // namespace
} // namespace vantrix
