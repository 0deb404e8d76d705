#include "linux/bluetooth/bluez_objects.h"

#include <algorithm>

#include <QDBusObjectPath>

namespace vantrix {
namespace {

struct Property {
    const QString& interface;
    QLatin1StringView name;
    QMetaType type;
};

const Property* findProperty(const QString& interface, const QString& name) {
    using namespace Qt::StringLiterals;
    static const Property properties[] = {
        {bluez::adapter, "Powered"_L1, QMetaType::fromType<bool>()},
        {bluez::device, "Connected"_L1, QMetaType::fromType<bool>()},
        {bluez::device, "ServicesResolved"_L1, QMetaType::fromType<bool>()},
        {bluez::device, "Name"_L1, QMetaType::fromType<QString>()},
        {bluez::device, "Alias"_L1, QMetaType::fromType<QString>()},
        {bluez::device, "Address"_L1, QMetaType::fromType<QString>()},
        {bluez::device, "Class"_L1, QMetaType::fromType<uint>()},
        {bluez::device, "UUIDs"_L1, QMetaType::fromType<QStringList>()},
        {bluez::battery, "Percentage"_L1, QMetaType::fromType<uchar>()},
        {bluez::gattService, "UUID"_L1, QMetaType::fromType<QString>()},
        {bluez::gattService, "Device"_L1, QMetaType::fromType<QDBusObjectPath>()},
        {bluez::gattCharacteristic, "UUID"_L1, QMetaType::fromType<QString>()},
        {bluez::gattCharacteristic, "Service"_L1, QMetaType::fromType<QDBusObjectPath>()},
        {bluez::gattCharacteristic, "Value"_L1, QMetaType::fromType<QByteArray>()},
    };
    const auto* found = std::find_if(std::begin(properties), std::end(properties), [&](const Property& property) {
        return property.interface == interface && property.name == name;
    });
    return found != std::end(properties) ? found : nullptr;
}

bool isKept(const QString& interface) {
    return interface == bluez::adapter || interface == bluez::device || interface == bluez::battery ||
           interface == bluez::gattService || interface == bluez::gattCharacteristic;
}

/// Takes over what is kept of `changed`; false when nothing is new.
bool take(QVariantMap& known, const QString& interface, const QVariantMap& changed) {
    bool isNews = false;
    for (auto entry = changed.begin(); entry != changed.end(); ++entry) {
        const Property* property = findProperty(interface, entry.key());
        if (!property)
            continue;
        if (entry->metaType() != property->type) {
            isNews |= known.remove(entry.key()) > 0;
        } else if (known.value(entry.key()) != *entry) {
            known.insert(entry.key(), *entry);
            isNews = true;
        }
    }
    return isNews;
}

} // namespace

bool BluezObjects::add(const QString& path, const Interfaces& interfaces) {
    bool isNews = false;
    for (auto entry = interfaces.begin(); entry != interfaces.end(); ++entry) {
        if (!isKept(entry.key()))
            continue;
        QVariantMap properties;
        take(properties, entry.key(), *entry);
        objects_[path].insert(entry.key(), properties);
        isNews = true;
    }
    return isNews;
}

bool BluezObjects::remove(const QString& path, const QStringList& interfaces) {
    const auto object = objects_.find(path);
    if (object == objects_.end())
        return false;
    bool isNews = false;
    for (const QString& interface : interfaces)
        isNews |= object->remove(interface) > 0;
    if (object->isEmpty())
        objects_.erase(object);
    return isNews;
}

bool BluezObjects::change(const QString& path, const QString& interface, const QVariantMap& changed,
                          const QStringList& invalidated) {
    const auto object = objects_.find(path);
    if (object == objects_.end())
        return false;
    const auto known = object->find(interface);
    if (known == object->end())
        return false;
    bool isNews = take(*known, interface, changed);
    for (const QString& property : invalidated)
        isNews |= known->remove(property) > 0;
    return isNews;
}

QStringList BluezObjects::paths(const QString& interface) const {
    QStringList found;
    for (auto object = objects_.begin(); object != objects_.end(); ++object)
        if (object->contains(interface))
            found.append(object.key());
    return found;
}

} // namespace vantrix
