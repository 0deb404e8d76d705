#include "linux/status_area/dbus_menu.h"

#include <algorithm>

#include <QDBusMessage>
#include <QDBusVariant>

namespace vantrix {

namespace {

const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

const QString menuDescription = QStringLiteral(R"xml(<interface name="com.canonical.dbusmenu">
<property name="Version" type="u" access="read"/><property name="Status" type="s" access="read"/>
<property name="TextDirection" type="s" access="read"/><property name="IconThemePath" type="as" access="read"/>
<method name="GetLayout"><arg type="i" direction="in"/><arg type="i" direction="in"/><arg type="as" direction="in"/>
<arg type="u" direction="out"/><arg type="(ia{sv}av)" direction="out"/></method>
<method name="GetGroupProperties"><arg type="ai" direction="in"/><arg type="as" direction="in"/>
<arg type="a(ia{sv})" direction="out"/></method>
<method name="GetProperty"><arg type="i" direction="in"/><arg type="s" direction="in"/>
<arg type="v" direction="out"/></method>
<method name="Event"><arg type="i" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="in"/>
<arg type="u" direction="in"/></method>
<method name="EventGroup"><arg type="a(isvu)" direction="in"/><arg type="ai" direction="out"/></method>
<method name="AboutToShow"><arg type="i" direction="in"/><arg type="b" direction="out"/></method>
<method name="AboutToShowGroup"><arg type="ai" direction="in"/><arg type="ai" direction="out"/>
<arg type="ai" direction="out"/></method>
<signal name="ItemsPropertiesUpdated"><arg type="a(ia{sv})"/><arg type="a(ias)"/></signal>
<signal name="LayoutUpdated"><arg type="u"/><arg type="i"/></signal>
</interface>
)xml");

QDBusMessage unknownId(const QDBusMessage& message) {
    return message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("No such menu entry"));
}

// Modifiers have GTK's names everywhere. Hosts made with Qt translate those, "plus" and "minus", and take all else as
// Qt writes it; GTK knows a comma only by its name.
QStringList keyNames(QKeyCombination keys, bool isForQt) {
    QStringList names;
    const auto modifiers = keys.keyboardModifiers();
    if (modifiers & Qt::ControlModifier)
        names << QStringLiteral("Control");
    if (modifiers & Qt::AltModifier)
        names << QStringLiteral("Alt");
    if (modifiers & Qt::ShiftModifier)
        names << QStringLiteral("Shift");
    if (modifiers & Qt::MetaModifier)
        names << QStringLiteral("Super");
    const QString key = QKeySequence(keys.key()).toString(QKeySequence::PortableText);
    return names << (key == QStringLiteral(",") && !isForQt ? QStringLiteral("comma") : key.toLower());
}

QVariantMap describe(const StatusMenuEntry& entry, bool isForQt) {
    if (entry.title.isEmpty())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QString label = entry.title;
    label.replace(u'_', QStringLiteral("__")); // a single one marks an access key
    QVariantMap properties{{QStringLiteral("label"), label}};
    if (!entry.shortcut.isEmpty())
        properties.insert(QStringLiteral("shortcut"),
                          QVariant::fromValue(MenuShortcut{keyNames(entry.shortcut[0], isForQt)}));
    return properties;
}

bool sameEntries(const std::vector<StatusMenuEntry>& a, const std::vector<StatusMenuEntry>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
        return one.title == other.title && one.shortcut == other.shortcut;
    });
}

} // namespace

DBusMenu::DBusMenu(const QDBusConnection& bus, QString path, Source source)
    : bus_(bus), path_(std::move(path)), source_(std::move(source)) {
    registerMenuTypes();
    bus_.registerVirtualObject(path_, this);
}

DBusMenu::~DBusMenu() {
    bus_.unregisterObject(path_);
}

QString DBusMenu::introspect(const QString&) const {
    return menuDescription;
}

bool DBusMenu::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() == propertiesInterface)
        return connection.send(answerProperties(message));
    if (message.interface() == menuInterface || message.interface().isEmpty())
        return connection.send(answerMenu(message));
    return false;
}

QDBusMessage DBusMenu::answerMenu(const QDBusMessage& message) {
    struct Method {
        QLatin1StringView name;
        QLatin1StringView signature;
        QDBusMessage (DBusMenu::*answer)(const QDBusMessage&);
    };
    static constexpr Method methods[] = {
        {QLatin1StringView("GetLayout"), QLatin1StringView("iias"), &DBusMenu::layout},
        {QLatin1StringView("GetGroupProperties"), QLatin1StringView("aias"), &DBusMenu::groupProperties},
        {QLatin1StringView("GetProperty"), QLatin1StringView("is"), &DBusMenu::property},
        {QLatin1StringView("Event"), QLatin1StringView("isvu"), &DBusMenu::event},
        {QLatin1StringView("EventGroup"), QLatin1StringView("a(isvu)"), &DBusMenu::eventGroup},
        {QLatin1StringView("AboutToShow"), QLatin1StringView("i"), &DBusMenu::aboutToShow},
        {QLatin1StringView("AboutToShowGroup"), QLatin1StringView("ai"), &DBusMenu::aboutToShowGroup},
    };
    for (const Method& method : methods) {
        if (message.member() != method.name)
            continue;
        if (message.signature() != method.signature)
            return message.createErrorReply(QDBusError::InvalidArgs, message.member());
        return (this->*method.answer)(message);
    }
    return message.createErrorReply(QDBusError::UnknownMethod, message.member());
}

QDBusMessage DBusMenu::answerProperties(const QDBusMessage& message) const {
    static const QVariantMap properties{
        {QStringLiteral("Version"), 3U},
        {QStringLiteral("Status"), QStringLiteral("normal")},
        {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
        {QStringLiteral("IconThemePath"), QStringList()},
    };
    const QVariantList arguments = message.arguments();
    if (message.member() == QStringLiteral("GetAll") && message.signature() == QStringLiteral("s"))
        return message.createReply(arguments[0] == menuInterface ? properties : QVariantMap());
    if (message.member() == QStringLiteral("Get") && message.signature() == QStringLiteral("ss")) {
        const auto found = properties.constFind(arguments[1].toString());
        if (found == properties.cend() || arguments[0] != menuInterface)
            return message.createErrorReply(QDBusError::UnknownProperty, arguments[1].toString());
        return message.createReply(QVariant::fromValue(QDBusVariant(*found)));
    }
    return message.createErrorReply(QDBusError::InvalidArgs, message.member());
}

/// Asks for the entries again; true when they differ from those the host knows.
bool DBusMenu::refresh() {
    auto entries = source_.entries();
    const bool changed = revision_ == 0 || !sameEntries(entries, entries_);
    entries_ = std::move(entries);
    if (!changed)
        return false;
    ++revision_;
    auto signal = QDBusMessage::createSignal(path_, menuInterface, QStringLiteral("LayoutUpdated"));
    signal << revision_ << 0;
    bus_.send(signal);
    return true;
}

bool DBusMenu::has(int id) const {
    return id >= 0 && static_cast<std::size_t>(id) <= entries_.size();
}

QVariantMap DBusMenu::propertiesOf(int id, const QStringList& wanted) const {
    QVariantMap properties{{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    if (id > 0)
        properties = describe(entries_[static_cast<std::size_t>(id) - 1], source_.hasQtKeys);
    if (wanted.isEmpty())
        return properties;
    erase_if(properties, [&](QVariantMap::iterator it) { return !wanted.contains(it.key()); });
    return properties;
}

QDBusMessage DBusMenu::layout(const QDBusMessage& message) {
    if (revision_ == 0)
        refresh();
    const int root = message.arguments()[0].toInt();
    const int depth = message.arguments()[1].toInt();
    const QStringList wanted = message.arguments()[2].toStringList();
    if (!has(root))
        return unknownId(message);
    MenuNode node{root, propertiesOf(root, wanted), {}};
    if (root == 0 && depth != 0)
        for (int id = 1; has(id); ++id)
            node.children << MenuNode{id, propertiesOf(id, wanted), {}};
    return message.createReply({revision_, QVariant::fromValue(node)});
}

QDBusMessage DBusMenu::groupProperties(const QDBusMessage& message) {
    if (revision_ == 0)
        refresh();
    auto ids = qdbus_cast<QList<int>>(message.arguments()[0]);
    const QStringList wanted = message.arguments()[1].toStringList();
    if (ids.isEmpty()) // means all of them
        for (int id = 0; has(id); ++id)
            ids << id;
    QList<MenuProperties> result;
    for (const int id : ids)
        if (has(id))
            result << MenuProperties{id, propertiesOf(id, wanted)};
    return message.createReply(QVariant::fromValue(result));
}

QDBusMessage DBusMenu::property(const QDBusMessage& message) {
    if (revision_ == 0)
        refresh();
    const int id = message.arguments()[0].toInt();
    const QString name = message.arguments()[1].toString();
    if (!has(id))
        return unknownId(message);
    const QVariant value = propertiesOf(id, {name}).value(name);
    if (!value.isValid())
        return message.createErrorReply(QDBusError::InvalidArgs, name);
    return message.createReply(QVariant::fromValue(QDBusVariant(value)));
}

/// False when there is no entry `id`.
bool DBusMenu::handleEvent(int id, const QString& kind) {
    if (!has(id))
        return false;
    if (id == 0 && kind == QStringLiteral("opened"))
        source_.willOpen();
    if (id > 0 && kind == QStringLiteral("clicked"))
        // Later, once the host has its answer: an action may open a window or end the program.
        if (const auto action = entries_[static_cast<std::size_t>(id) - 1].action)
            QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
    return true;
}

QDBusMessage DBusMenu::event(const QDBusMessage& message) {
    if (!handleEvent(message.arguments()[0].toInt(), message.arguments()[1].toString()))
        return unknownId(message);
    return message.createReply();
}

QDBusMessage DBusMenu::eventGroup(const QDBusMessage& message) {
    const auto events = message.arguments()[0].value<QDBusArgument>();
    QList<int> unknown;
    int count = 0;
    events.beginArray();
    for (; !events.atEnd(); ++count) {
        int id = 0;
        QString kind;
        QDBusVariant data;
        uint timestamp = 0;
        events.beginStructure();
        events >> id >> kind >> data >> timestamp;
        events.endStructure();
        if (!handleEvent(id, kind))
            unknown << id;
    }
    events.endArray();
    if (count > 0 && unknown.size() == count)
        return unknownId(message);
    return message.createReply(QVariant::fromValue(unknown));
}

QDBusMessage DBusMenu::aboutToShow(const QDBusMessage& message) {
    const int id = message.arguments()[0].toInt();
    if (!has(id))
        return unknownId(message);
    if (id != 0)
        return message.createReply(false);
    source_.willOpen();
    return message.createReply(refresh());
}

QDBusMessage DBusMenu::aboutToShowGroup(const QDBusMessage& message) {
    const auto ids = qdbus_cast<QList<int>>(message.arguments()[0]);
    QList<int> updated;
    QList<int> unknown;
    for (const int id : ids)
        if (!has(id))
            unknown << id;
    if (ids.contains(0)) {
        source_.willOpen();
        if (refresh())
            updated << 0;
    }
    if (!ids.isEmpty() && unknown.size() == ids.size())
        return unknownId(message);
    return message.createReply({QVariant::fromValue(updated), QVariant::fromValue(unknown)});
}

} // namespace vantrix
