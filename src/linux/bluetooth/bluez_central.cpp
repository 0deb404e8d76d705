#include "linux/bluetooth/bluez_central.h"

#include "linux/bluetooth/bluez_devices.h"
#include "monitor/qt_repeating_timer.h"
#include "platform/bluetooth.h"

namespace vantrix {

BluezCentral::BluezCentral(std::shared_ptr<BluezWatch> watch) : watch_(std::move(watch)) {
    QObject::connect(watch_.get(), &BluezWatch::stateChanged, this, [this] {
        listed_ = listedNow();
        if (delegate)
            delegate->centralDidUpdateState();
    });
    QObject::connect(watch_.get(), &BluezWatch::objectChanged, this, &BluezCentral::objectChanged);
}

std::vector<std::shared_ptr<BluetoothPeripheral>> BluezCentral::connectedPeripherals(const BluetoothUUID& service) {
    std::erase_if(peripherals_, [](const auto& entry) { return entry.second.expired(); });
    std::vector<std::shared_ptr<BluetoothPeripheral>> connected;
    if (service != bluetooth_uuid::batteryService)
        return connected;
    const BluezObjects& objects = watch_->objects();
    for (const QString& path : objects.paths(bluez::device)) {
        if (!bluez::isConnected(objects, path) || !bluez::isPeripheral(objects, path))
            continue;
        auto peripheral = peripherals_[path].lock();
        if (!peripheral)
            peripherals_[path] = peripheral = std::make_shared<BluezPeripheral>(watch_, path);
        connected.push_back(std::move(peripheral));
    }
    return connected;
}

void BluezCentral::connect(BluetoothPeripheral& peripheral) {
    if (delegate && peripheral.isConnected())
        delegate->didConnect(peripheral);
}

void BluezCentral::objectChanged(const QString& path) {
    for (const auto& [known, peripheral] :
         std::map(peripherals_)) // a copy, because an answer may ask for the list again
        if (const auto alive = peripheral.lock())
            alive->objectChanged(path);
    auto listed = listedNow();
    if (listed == listed_)
        return;
    listed_ = std::move(listed);
    if (delegate)
        delegate->centralDidUpdateState();
}

std::vector<BluezCentral::Listed> BluezCentral::listedNow() const {
    std::vector<Listed> listed;
    const BluezObjects& objects = watch_->objects();
    for (const QString& path : objects.paths(bluez::device)) {
        if (!bluez::isConnected(objects, path))
            continue;
        const bool isPeripheral = bluez::isPeripheral(objects, path);
        listed.push_back({path, isPeripheral, isPeripheral ? std::nullopt : bluez::percentageOf(objects, path)});
    }
    return listed;
}

std::vector<ClassicBluetoothDevices::Device> BluezClassicDevices::paired() {
    std::vector<Device> devices;
    const BluezObjects& objects = watch_->objects();
    for (const QString& path : objects.paths(bluez::device)) {
        const auto deviceClass = objects.value<uint>(path, bluez::device, "Class");
        if (!deviceClass || bluez::isPeripheral(objects, path))
            continue;
        Device device;
        device.name = bluez::nameOf(objects, path).toStdString();
        device.address = bluez::addressOf(objects, path).toStdString();
        device.isConnected = bluez::isConnected(objects, path);
        device.majorClass = bluez::majorClass(*deviceClass);
        if (const auto percentage = bluez::percentageOf(objects, path))
            device.levels.single = *percentage;
        devices.push_back(std::move(device));
    }
    return devices;
}

Bluetooth makeBluetooth() {
    const auto bus = sharedSystemBus();
    if (!bus->address())
        return {};
    const auto watch = std::make_shared<BluezWatch>(bus);
    return {std::make_unique<BluezCentral>(watch), std::make_unique<BluezClassicDevices>(watch),
            std::make_unique<QtRepeatingTimer>()};
}

} // namespace vantrix
