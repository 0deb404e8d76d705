#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include "posix/spin_until.h"

namespace vantrix {

/// The value of a gauge or a bar as assistive programs read it.
struct AccessibleValue {
    double current = 0.0;
    double least = 0.0;
    double most = 0.0;
};

/// One thing in the tree that assistive programs read.
struct AccessibleNode {
    QString role; ///< as the toolkit names it, such as "label"
    QString name;
    std::optional<AccessibleValue> value;
    std::vector<AccessibleNode> children;
};

/// Reads over the accessibility bus what a screen reader would.
class AccessibilityBus {
  public:
    /// Asks the session for the bus, which brings it up. Not connected where there is none.
    AccessibilityBus() : bus_(QDBusConnection::connectToBus(address(), QStringLiteral("reader"))) {}
    ~AccessibilityBus() { QDBusConnection::disconnectFromBus(QStringLiteral("reader")); }
    Q_DISABLE_COPY_MOVE(AccessibilityBus)

    bool isConnected() const { return bus_.isConnected(); }

    /// Everything there is of the program called `name`; absent while the desktop lists none.
    std::optional<AccessibleNode> program(const QString& name) const {
        const Object desktop{QStringLiteral("org.a11y.atspi.Registry"),
                             QStringLiteral("/org/a11y/atspi/accessible/root")};
        for (const Object& child : childrenOf(desktop))
            if (property(child, accessible, "Name").toString() == name)
                return read(child);
        return std::nullopt;
    }

  private:
    struct Object {
        QString service;
        QString path;
    };

    inline static const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
    inline static const QString valueInterface = QStringLiteral("org.a11y.atspi.Value");

    // The program that is read may be this very one: a blocking call would wait for itself.
    static QDBusMessage call(const QDBusConnection& bus, const QDBusMessage& message) {
        const QDBusPendingCall pending = bus.asyncCall(message);
        spinUntil([&] { return pending.isFinished(); });
        return pending.reply();
    }

    static QString address() {
        const auto ask = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                                        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
        return call(QDBusConnection::sessionBus(), ask).arguments().value(0).toString();
    }

    QDBusMessage call(const Object& object, const QString& interface, const char* member) const {
        return call(bus_,
                    QDBusMessage::createMethodCall(object.service, object.path, interface, QLatin1StringView(member)));
    }

    QVariant property(const Object& object, const QString& interface, const char* name) const {
        auto message = QDBusMessage::createMethodCall(
            object.service, object.path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        message << interface << QString::fromLatin1(name);
        return call(bus_, message).arguments().value(0).value<QDBusVariant>().variant();
    }

    /// The reply to GetChildren is a list of (bus name, path).
    std::vector<Object> childrenOf(const Object& object) const {
        const QDBusMessage reply = call(object, accessible, "GetChildren");
        std::vector<Object> children;
        if (reply.signature() != u"a(so)")
            return children;
        const auto list = reply.arguments().constFirst().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            Object child;
            QDBusObjectPath path;
            list.beginStructure();
            list >> child.service >> path;
            list.endStructure();
            child.path = path.path();
            children.push_back(child);
        }
        list.endArray();
        return children;
    }

    std::optional<AccessibleValue> valueOf(const Object& object) const {
        const QStringList interfaces = call(object, accessible, "GetInterfaces").arguments().value(0).toStringList();
        if (!interfaces.contains(valueInterface))
            return std::nullopt;
        const auto number = [&](const char* name) { return property(object, valueInterface, name).toDouble(); };
        return AccessibleValue{number("CurrentValue"), number("MinimumValue"), number("MaximumValue")};
    }

    AccessibleNode read(const Object& object) const {
        AccessibleNode node;
        node.role = call(object, accessible, "GetRoleName").arguments().value(0).toString();
        node.name = property(object, accessible, "Name").toString();
        node.value = valueOf(object);
        for (const Object& child : childrenOf(object))
            node.children.push_back(read(child));
        return node;
    }

    QDBusConnection bus_;
};

/// The first of a tree's nodes, itself included, with that role and name; null when there is none, or no tree.
inline const AccessibleNode* find(const AccessibleNode* tree, const char* role, const char* name) {
    if (tree == nullptr || (tree->role == QLatin1StringView(role) && tree->name == QLatin1StringView(name)))
        return tree;
    for (const AccessibleNode& child : tree->children)
        if (const AccessibleNode* found = find(&child, role, name))
            return found;
    return nullptr;
}

/// The tree as indented lines, for messages.
inline QString describe(const AccessibleNode& node, int depth = 0) {
    QString text = QString(2 * depth, u' ') + node.role + QStringLiteral(" \"") + node.name + u'"';
    if (node.value)
        text += QStringLiteral(" %1 of %2..%3").arg(node.value->current).arg(node.value->least).arg(node.value->most);
    text += u'\n';
    for (const AccessibleNode& child : node.children)
        text += describe(child, depth + 1);
    return text;
}

} // namespace vantrix
