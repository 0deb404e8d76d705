#include "accessories/bluetooth_battery_reader.h"

#include <algorithm>
#include <utility>

#include "accessories/accessory_symbol.h"
#include "support/localization.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

constexpr double refreshInterval = 60.0; // seconds
constexpr double refreshTolerance = 6.0; // seconds
constexpr int audioClass = 4;

using bluetooth_uuid::batteryLevel;
using bluetooth_uuid::batteryService;

const char* statusOf(BluetoothState state) {
    switch (state) {
    case BluetoothState::unauthorized:
        return "permission denied (System Settings > Privacy > Bluetooth)";
    case BluetoothState::poweredOff:
        return "Bluetooth off";
    case BluetoothState::poweredOn:
        return "on";
    case BluetoothState::unknown:
    case BluetoothState::unsupported:
        break;
    }
    return "unavailable";
}

std::string displayName(const std::string& ownName, const std::string& address = {}) {
    if (!ownName.empty())
        return ownName;
    return address.empty() ? localized("Bluetooth device") : address;
}

} // namespace

BluetoothBatteryReader::BluetoothBatteryReader(std::unique_ptr<BluetoothCentral> central,
                                               std::unique_ptr<ClassicBluetoothDevices> classicDevices,
                                               std::unique_ptr<RepeatingTimer> timer)
    : central_(std::move(central)), classicDevices_(std::move(classicDevices)), timer_(std::move(timer)),
      life_(std::make_shared<char>()) {
    central_->delegate = this;
}

BluetoothBatteryReader::~BluetoothBatteryReader() {
    central_->delegate = nullptr;
    for (const auto& [identifier, peripheral] : peripherals_)
        peripheral->delegate = nullptr;
}

void BluetoothBatteryReader::changed() const {
    if (onChange)
        onChange();
}

void BluetoothBatteryReader::centralDidUpdateState() {
    const BluetoothState state = central_->state();
    status_ = statusOf(state);
    if (state == BluetoothState::poweredOn) {
        refresh();
        scheduleRefresh();
    }
    changed();
}

void BluetoothBatteryReader::scheduleRefresh() {
    if (std::exchange(isScheduled_, true))
        return;
    timer_->schedule(refreshInterval, refreshTolerance, [this, life = std::weak_ptr(life_)] {
        if (life.expired())
            return;
        const auto before = all();
        refresh();
        if (all() != before)
            changed();
    });
}

void BluetoothBatteryReader::refresh() {
    if (central_->state() != BluetoothState::poweredOn)
        return;
    readClassicDevices();
    refreshPeripherals();
}

void BluetoothBatteryReader::refreshPeripherals() {
    const auto connected = central_->connectedPeripherals(batteryService);
    std::for_each(connected.begin(), connected.end(), [this](const auto& peripheral) { take(peripheral); });
    const auto isGone = [&](const std::string& identifier) {
        return std::none_of(connected.begin(), connected.end(),
                            [&](const auto& peripheral) { return peripheral->identifier() == identifier; });
    };
    std::erase_if(peripherals_, [&](const auto& known) {
        const bool gone = isGone(known.first);
        if (gone)
            known.second->delegate = nullptr;
        return gone;
    });
    std::erase_if(levels_, [&](const auto& level) { return isGone(level.first); });
}

void BluetoothBatteryReader::take(const std::shared_ptr<BluetoothPeripheral>& peripheral) {
    auto& known = peripherals_[peripheral->identifier()];
    if (known)
        known->delegate = nullptr;
    known = peripheral;
    peripheral->delegate = this;
    if (peripheral->isConnected())
        peripheral->discoverServices(batteryService);
    else
        central_->connect(*peripheral);
}

void BluetoothBatteryReader::didConnect(BluetoothPeripheral& peripheral) {
    peripheral.discoverServices(batteryService);
}

void BluetoothBatteryReader::didDiscoverServices(BluetoothPeripheral& peripheral,
                                                 const std::vector<BluetoothAttribute>& services) {
    for (const BluetoothAttribute& service : services)
        if (service.uuid == batteryService)
            peripheral.discoverCharacteristics(service, batteryLevel);
}

void BluetoothBatteryReader::didDiscoverCharacteristics(BluetoothPeripheral& peripheral,
                                                        const std::vector<BluetoothAttribute>& characteristics) {
    for (const BluetoothAttribute& characteristic : characteristics) {
        if (characteristic.uuid != batteryLevel)
            continue;
        peripheral.readValue(characteristic);
        peripheral.subscribe(characteristic);
    }
}

void BluetoothBatteryReader::didUpdateValue(BluetoothPeripheral& peripheral, const BluetoothAttribute& characteristic,
                                            const std::vector<std::uint8_t>& value) {
    if (characteristic.uuid != batteryLevel || value.empty())
        return;
    levels_[peripheral.identifier()] = boundedPercent(value.front());
    changed();
}

void BluetoothBatteryReader::readClassicDevices() {
    classic_.clear();
    classicInfo_.clear();
    if (!classicDevices_)
        return;
    for (const ClassicBluetoothDevices::Device& device : classicDevices_->paired()) {
        if (!device.isConnected)
            continue;
        const std::string name = displayName(device.name, device.address);
        const std::string symbol = device.majorClass == audioClass ? "headphones" : symbolForAccessory(name);
        const std::size_t before = classic_.size();
        appendAccessory(classic_, {{name, 0, false, symbol}, device.address, {}, !device.name.empty()}, device.levels);
        // Where only the case has a level, its line stands for the device.
        appendToList(classicInfo_, classic_.size() > before
                                       ? namedLevel(classic_[before].battery)
                                       : name + " [no value] class " + std::to_string(device.majorClass));
    }
}

std::vector<AccessoryReading> BluetoothBatteryReader::readings() const {
    std::vector<AccessoryReading> list;
    list.reserve(levels_.size());
    for (const auto& [identifier, peripheral] : peripherals_) {
        const auto level = levels_.find(identifier);
        if (level == levels_.end())
            continue;
        const std::string ownName = peripheral->name().value_or("");
        const std::string name = displayName(ownName);
        list.push_back({{name, level->second, false, symbolForAccessory(name)},
                        peripheral->address(),
                        identifier,
                        !ownName.empty()});
    }
    return list;
}

std::vector<AccessoryReading> BluetoothBatteryReader::all() const {
    auto list = readings();
    list.insert(list.end(), classic_.begin(), classic_.end());
    return list;
}

std::string BluetoothBatteryReader::diagnostics() const {
    std::string levels;
    for (const AccessoryReading& reading : readings())
        appendToList(levels, namedLevel(reading.battery));
    std::string text = status_ + ", " + std::to_string(peripherals_.size()) + " with battery service";
    if (!levels.empty())
        text += ": " + levels;
    return text + " | classic: " + classicInfo_;
}

} // namespace vantrix
