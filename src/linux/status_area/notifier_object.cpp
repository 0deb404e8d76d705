#include "linux/status_area/notifier_object.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QHash>

namespace vantrix {

namespace {

const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QDBusMessage invalidArguments(const QDBusMessage& message) {
    return message.createErrorReply(QDBusError::InvalidArgs,
                                    QStringLiteral("Wrong arguments for %1").arg(message.member()));
}

const QString itemMethods = QStringLiteral(R"(<interface name="org.kde.StatusNotifierItem">
<method name="Activate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
<method name="SecondaryActivate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
<method name="ContextMenu"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
<method name="Scroll"><arg type="i" direction="in"/><arg type="s" direction="in"/></method>
<method name="ProvideXdgActivationToken"><arg type="s" direction="in"/></method>
<signal name="NewTitle"/><signal name="NewIcon"/><signal name="NewToolTip"/>
<signal name="NewStatus"><arg type="s"/></signal>
)");

} // namespace

NotifierObject::NotifierObject(const QDBusConnection& bus, QString path, QString id, const QString& menuPath,
                               Clicked clicked)
    : bus_(bus), path_(std::move(path)), clicked_(std::move(clicked)) {
    registerNotifierTypes();
    const auto noPixmaps = QVariant::fromValue(NotifierPixmaps());
    properties_ = {
        {QStringLiteral("Category"), QStringLiteral("SystemServices")},
        {QStringLiteral("Id"), std::move(id)},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("WindowId"), 0},
        {QStringLiteral("IconName"), QString()},
        {QStringLiteral("IconThemePath"), QString()},
        {QStringLiteral("OverlayIconName"), QString()},
        {QStringLiteral("OverlayIconPixmap"), noPixmaps},
        {QStringLiteral("AttentionIconName"), QString()},
        {QStringLiteral("AttentionIconPixmap"), noPixmaps},
        {QStringLiteral("AttentionMovieName"), QString()},
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(menuPath))},
    };
    set({});
    bus_.registerVirtualObject(path_, this);
}

NotifierObject::~NotifierObject() {
    bus_.unregisterObject(path_);
}

void NotifierObject::set(const NotifierContent& content) {
    content_ = content;
    properties_[QStringLiteral("Title")] = content.title;
    properties_[QStringLiteral("IconPixmap")] = QVariant::fromValue(content.icon);
    properties_[QStringLiteral("ToolTip")] = QVariant::fromValue(NotifierToolTip{{}, {}, content.toolTip, {}});
    if (!content.label)
        return;
    properties_[QStringLiteral("XAyatanaLabel")] = *content.label;
    properties_[QStringLiteral("XAyatanaLabelGuide")] = content.labelGuide;
}

void NotifierObject::announce(const QString& signal, const QVariantList& arguments) {
    auto message = QDBusMessage::createSignal(path_, itemInterface, signal);
    message.setArguments(arguments);
    bus_.send(message);
}

QString NotifierObject::introspect(const QString&) const {
    QString xml = itemMethods;
    const QString property = QStringLiteral("<property name=\"%1\" type=\"%2\" access=\"read\"/>\n");
    for (auto it = properties_.cbegin(); it != properties_.cend(); ++it)
        xml += property.arg(it.key(), QString::fromLatin1(QDBusMetaType::typeToSignature(it->metaType())));
    return xml + QStringLiteral("</interface>\n");
}

bool NotifierObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QString interface = message.interface();
    if (interface == propertiesInterface) {
        const bool sent = connection.send(answerProperties(message));
        Q_EMIT asked(message.service());
        return sent;
    }
    if (interface == itemInterface || interface.isEmpty())
        return connection.send(answerItem(message));
    return false;
}

QDBusMessage NotifierObject::answerProperties(const QDBusMessage& message) const {
    const QVariantList arguments = message.arguments();
    if (message.member() == QStringLiteral("GetAll")) {
        if (message.signature() != QStringLiteral("s"))
            return invalidArguments(message);
        const bool ours = arguments[0].toString().isEmpty() || arguments[0] == itemInterface;
        return message.createReply(ours ? properties_ : QVariantMap());
    }
    if (message.member() == QStringLiteral("Get")) {
        if (message.signature() != QStringLiteral("ss"))
            return invalidArguments(message);
        const auto found = properties_.constFind(arguments[1].toString());
        if (found == properties_.cend() || arguments[0] != itemInterface)
            return message.createErrorReply(QDBusError::UnknownProperty, arguments[1].toString());
        return message.createReply(QVariant::fromValue(QDBusVariant(*found)));
    }
    if (message.member() == QStringLiteral("Set"))
        return message.createErrorReply(QDBusError::PropertyReadOnly, message.member());
    return message.createErrorReply(QDBusError::UnknownMethod, message.member());
}

QDBusMessage NotifierObject::answerItem(const QDBusMessage& message) {
    static const QHash<QString, StatusClick::Button> clicks{
        {QStringLiteral("Activate"), StatusClick::Button::left},
        {QStringLiteral("SecondaryActivate"), StatusClick::Button::middle},
        {QStringLiteral("ContextMenu"), StatusClick::Button::right},
    };
    const QString member = message.member();
    const auto click = clicks.constFind(member);
    if (click != clicks.cend()) {
        if (message.signature() != QStringLiteral("ii"))
            return invalidArguments(message);
        const QPoint point(message.arguments()[0].toInt(), message.arguments()[1].toInt());
        // Answered first, because a click may take long or end the program.
        QMetaObject::invokeMethod(
            this,
            [this, button = *click, point] {
                clicked_({button, false}, point);
            },
            Qt::QueuedConnection);
        return message.createReply();
    }
    // Scroll is ignored: there is nothing to scroll.
    if (member == QStringLiteral("ProvideXdgActivationToken") || member == QStringLiteral("Scroll"))
        return message.createReply();
    return message.createErrorReply(QDBusError::UnknownMethod, member);
}

} // namespace vantrix
