#pragma once

#include <QDBusArgument>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace vantrix {

/// An entry of com.canonical.dbusmenu's layout: (ia{sv}av), the children being of the same kind.
struct MenuNode {
    int id = 0;
    QVariantMap properties;
    QList<MenuNode> children;
};

/// An entry's properties: (ia{sv}).
struct MenuProperties {
    int id = 0;
    QVariantMap properties;
};

/// Key combinations, each a list of modifiers and a key: aas.
using MenuShortcut = QList<QStringList>;

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& entry);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& entry);

/// Makes the types above known to QtDBus; harmless when repeated.
void registerMenuTypes();

} // namespace vantrix
