#pragma once

#include <optional>

#include <QMap>
#include <QStringList>
#include <QVariantMap>

namespace vantrix {

namespace bluez {

inline const QString adapter = QStringLiteral("org.bluez.Adapter1");
inline const QString device = QStringLiteral("org.bluez.Device1");
inline const QString battery = QStringLiteral("org.bluez.Battery1");
inline const QString gattService = QStringLiteral("org.bluez.GattService1");
inline const QString gattCharacteristic = QStringLiteral("org.bluez.GattCharacteristic1");

} // namespace bluez

/// What BlueZ has reported of its objects, as far as batteries need it. Anything else is dropped, and so are values of
/// another type than BlueZ documents.
class BluezObjects {
  public:
    using Interfaces = QMap<QString, QVariantMap>; ///< properties by interface

    void clear() { objects_.clear(); }

    // Each is false where nothing that is kept has changed.
    bool add(const QString& path, const Interfaces& interfaces);
    bool remove(const QString& path, const QStringList& interfaces);
    bool change(const QString& path, const QString& interface, const QVariantMap& changed,
                const QStringList& invalidated);

    bool has(const QString& path, const QString& interface) const { return objects_.value(path).contains(interface); }
    /// The objects that have an interface.
    QStringList paths(const QString& interface) const;

    template<typename T>
    std::optional<T> value(const QString& path, const QString& interface, const char* property) const {
        const QVariant found = objects_.value(path).value(interface).value(QString::fromLatin1(property));
        return found.isValid() ? std::optional(found.value<T>()) : std::nullopt;
    }

  private:
    QMap<QString, Interfaces> objects_;
};

} // namespace vantrix
