#include "linux/bluetooth/bluez_peripheral.h"

#include <algorithm>
#include <utility>

#include <QDBusObjectPath>

#include "linux/bluetooth/bluez_devices.h"

namespace vantrix {
namespace {

using bluetooth_uuid::batteryLevel;
using bluetooth_uuid::batteryService;

/// The objects of one GATT kind that belong to another object and are of one UUID.
std::vector<BluetoothAttribute> attributesOf(const BluezObjects& objects, const QString& interface, const char* parent,
                                             const QString& parentPath, const BluetoothUUID& kind) {
    std::vector<BluetoothAttribute> found;
    for (const QString& path : objects.paths(interface)) {
        const auto belongsTo = objects.value<QDBusObjectPath>(path, interface, parent);
        const auto uuid = objects.value<QString>(path, interface, "UUID").value_or(QString());
        if (belongsTo && belongsTo->path() == parentPath && BluetoothUUID(uuid.toStdString()) == kind)
            found.push_back({kind, path.toStdString()});
    }
    return found;
}

} // namespace

BluezPeripheral::BluezPeripheral(std::shared_ptr<BluezWatch> watch, const QString& path)
    : watch_(std::move(watch)), path_(path) {
    noteIdentity();
}

void BluezPeripheral::noteIdentity() {
    if (!watch_->objects().has(path_, bluez::device))
        return;
    const QString name = bluez::nameOf(watch_->objects(), path_);
    name_ = name.isEmpty() ? std::nullopt : std::optional(name.toStdString());
    address_ = bluez::addressOf(watch_->objects(), path_).toStdString();
}

bool BluezPeripheral::isConnected() const {
    return bluez::isConnected(watch_->objects(), path_);
}

bool BluezPeripheral::isBattery(const BluetoothAttribute& attribute) const {
    return attribute.identifier == identifier();
}

std::vector<BluetoothAttribute> BluezPeripheral::services(const BluetoothUUID& kind) const {
    const BluezObjects& objects = watch_->objects();
    if (kind == batteryService && bluez::percentageOf(objects, path_))
        return {{kind, identifier()}};
    // Before that a service may still lack its characteristics.
    if (!objects.value<bool>(path_, bluez::device, "ServicesResolved").value_or(false))
        return {};
    return attributesOf(objects, bluez::gattService, "Device", path_, kind);
}

void BluezPeripheral::discoverServices(const BluetoothUUID& kind) {
    const auto found = services(kind);
    wanted_ = found.empty() ? std::optional(kind) : std::nullopt;
    if (!found.empty() && delegate)
        delegate->didDiscoverServices(*this, found);
}

void BluezPeripheral::discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) {
    std::vector<BluetoothAttribute> found;
    if (!isBattery(service))
        found = attributesOf(watch_->objects(), bluez::gattCharacteristic, "Service",
                             QString::fromStdString(service.identifier), kind);
    else if (kind == batteryLevel)
        found.push_back({kind, identifier()});
    if (delegate)
        delegate->didDiscoverCharacteristics(*this, found);
}

void BluezPeripheral::readValue(const BluetoothAttribute& characteristic) {
    if (isBattery(characteristic))
        return tellPercentage(characteristic);
    const QString path = QString::fromStdString(characteristic.identifier);
    if (beingRead_.contains(path))
        return;
    beingRead_.insert(path);
    watch_->readCharacteristic(path, [self = weak_from_this(), characteristic, path](const auto& value) {
        const auto alive = self.lock();
        if (!alive)
            return;
        alive->beingRead_.remove(path);
        if (value)
            alive->tell(characteristic, *value);
    });
}

void BluezPeripheral::subscribe(const BluetoothAttribute& characteristic) {
    const bool isNew = std::none_of(subscribed_.begin(), subscribed_.end(),
                                    [&](const auto& known) { return known.identifier == characteristic.identifier; });
    if (isNew)
        subscribed_.push_back(characteristic);
    if (!isBattery(characteristic))
        watch_->followCharacteristic(QString::fromStdString(characteristic.identifier));
}

void BluezPeripheral::objectChanged(const QString& path) {
    if (path != path_ && !path.startsWith(path_ + u'/'))
        return;
    if (path == path_)
        noteIdentity();
    if (wanted_)
        discoverServices(BluetoothUUID(*wanted_));
    const auto subscription = std::find_if(subscribed_.begin(), subscribed_.end(), [&](const auto& characteristic) {
        return characteristic.identifier == path.toStdString();
    });
    if (subscription == subscribed_.end())
        return;
    const BluetoothAttribute characteristic = *subscription;
    if (isBattery(characteristic))
        tellPercentage(characteristic);
    else if (!watch_->objects().has(path, bluez::gattCharacteristic))
        subscribed_.erase(subscription);
    else if (const auto value = watch_->objects().value<QByteArray>(path, bluez::gattCharacteristic, "Value"))
        tell(characteristic, *value);
}

void BluezPeripheral::tellPercentage(const BluetoothAttribute& characteristic) {
    if (const auto percentage = bluez::percentageOf(watch_->objects(), path_))
        tell(characteristic, QByteArray(1, static_cast<char>(*percentage)));
}

void BluezPeripheral::tell(const BluetoothAttribute& characteristic, const QByteArray& value) {
    if (delegate)
        delegate->didUpdateValue(*this, characteristic, {value.begin(), value.end()});
}

} // namespace vantrix
