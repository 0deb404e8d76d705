#pragma once

#include <memory>
#include <vector>

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>

#include "linux/services/session_bus.h"

namespace vantrix {

/// A colour as the portal tells it: three doubles in one structure.
struct PortalColor {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const PortalColor& color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor& color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

using PortalSettings = QMap<QString, QVariantMap>;

/// The desktop's settings portal on a bus of the test's own.
class FakePortal : public QDBusVirtualObject {
    Q_OBJECT
  public:
    enum class Manner { answers, hangs, repliesNonsense, refuses };

    explicit FakePortal(const QString& busAddress, const PortalSettings& told = {}, Manner manner = Manner::answers)
        : settings(told), manner_(manner), connection_(busAddress) {
        qDBusRegisterMetaType<PortalColor>();
        qDBusRegisterMetaType<PortalSettings>();
        connection_.bus().registerVirtualObject(path, this);
        connection_.bus().interface()->registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    /// Gives its name back; by the end the bus has told everybody.
    void leave() { connection_.bus().interface()->unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")); }

    /// Changes one setting while the programs run.
    void change(const QString& group, const QString& key, const QVariant& value) {
        settings[group][key] = value;
        auto signal = QDBusMessage::createSignal(path, interface, QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        connection_.bus().send(signal);
    }

    /// Answers what it left hanging.
    void wakeUp() {
        for (const QDBusMessage& message : asked)
            connection_.bus().send(message.createReply(QVariant::fromValue(settings)));
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != interface || message.member() != u"ReadAll")
            return false;
        asked.push_back(message);
        message.setDelayedReply(true);
        if (manner_ == Manner::answers)
            bus.send(message.createReply(QVariant::fromValue(settings)));
        else if (manner_ == Manner::repliesNonsense)
            bus.send(message.createReply({QStringLiteral("no settings"), 7}));
        else if (manner_ == Manner::refuses)
            bus.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("not for you")));
        return true;
    }

    PortalSettings settings;
    std::vector<QDBusMessage> asked;

  private:
    inline static const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    inline static const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

    Manner manner_;
    BusConnection connection_;
};

} // namespace vantrix
