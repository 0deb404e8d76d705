#pragma once

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QMap>

#include "linux/services/fake_service.h"

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

/// Registering the type needs it; nobody here is told a colour.
inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor&) {
    return argument;
}

using PortalSettings = QMap<QString, QVariantMap>;

/// The desktop's settings portal.
class FakePortal : public FakeService {
  public:
    explicit FakePortal(const QString& busAddress, const PortalSettings& told = {})
        : FakeService(busAddress, QStringLiteral("org.freedesktop.portal.Desktop"), path,
                      [this](const QDBusMessage& call) { return call.createReply(QVariant::fromValue(settings)); }),
          settings(told) {
        qDBusRegisterMetaType<PortalColor>();
        qDBusRegisterMetaType<PortalSettings>();
        appear();
    }

    /// Changes one setting while the programs run.
    void change(const QString& group, const QString& key, const QVariant& value) {
        settings[group][key] = value;
        emitSignal(path, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"),
                   {group, key, QVariant::fromValue(QDBusVariant(value))});
    }

    PortalSettings settings;

  private:
    inline static const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
};

} // namespace vantrix
