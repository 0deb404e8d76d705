#include "linux/bluetooth/bluez_devices.h"

#include <algorithm>

#include "accessories/bluetooth_uuid.h"

namespace vantrix::bluez {

bool isConnected(const BluezObjects& objects, const QString& path) {
    const QString adapterPath = path.left(path.lastIndexOf(u'/'));
    return objects.value<bool>(path, device, "Connected").value_or(false) &&
           objects.value<bool>(adapterPath, adapter, "Powered").value_or(false);
}

bool isPeripheral(const BluezObjects& objects, const QString& path) {
    const auto services = objects.value<QStringList>(path, device, "UUIDs").value_or(QStringList());
    const bool offersBattery = std::any_of(services.begin(), services.end(), [](const QString& uuid) {
        return BluetoothUUID(uuid.toStdString()) == bluetooth_uuid::batteryService;
    });
    return offersBattery || (percentageOf(objects, path) && !objects.value<uint>(path, device, "Class"));
}

QString nameOf(const BluezObjects& objects, const QString& path) {
    QString alias = objects.value<QString>(path, device, "Alias").value_or(QString());
    // The alias of a device without a name is its address with dashes.
    if (!alias.isEmpty() && alias != addressOf(objects, path).replace(u':', u'-'))
        return alias;
    return objects.value<QString>(path, device, "Name").value_or(QString());
}

QString addressOf(const BluezObjects& objects, const QString& path) {
    return objects.value<QString>(path, device, "Address").value_or(QString());
}

std::optional<uchar> percentageOf(const BluezObjects& objects, const QString& path) {
    return objects.value<uchar>(path, battery, "Percentage");
}

int majorClass(uint deviceClass) {
    return static_cast<int>(deviceClass >> 8U & 0x1fU);
}

} // namespace vantrix::bluez
