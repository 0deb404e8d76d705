#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "accessories/accessory_reading.h"
#include "accessories/bluetooth_central.h"
#include "accessories/classic_bluetooth_devices.h"
#include "support/repeating_timer.h"

namespace vantrix {

/// Battery levels of the Bluetooth accessories that the system is connected to: of LE peripherals by their battery
/// service, of classic devices by what the system publishes. Main thread only.
class BluetoothBatteryReader final : private BluetoothCentral::Delegate, private BluetoothPeripheral::Delegate {
  public:
    /// Nothing happens before the central reports its state. `classicDevices` may be null; `timer` starts when
    /// Bluetooth is on for the first time.
    BluetoothBatteryReader(std::unique_ptr<BluetoothCentral> central,
                           std::unique_ptr<ClassicBluetoothDevices> classicDevices,
                           std::unique_ptr<RepeatingTimer> timer);
    ~BluetoothBatteryReader();
    BluetoothBatteryReader(const BluetoothBatteryReader&) = delete;
    BluetoothBatteryReader& operator=(const BluetoothBatteryReader&) = delete;

    /// The LE peripherals with a level.
    std::vector<AccessoryReading> readings() const;
    /// The classic devices with a level, and their cases.
    const std::vector<AccessoryReading>& classic() const { return classic_; }
    /// The LE peripherals, then the classic devices.
    std::vector<AccessoryReading> all() const;
    /// The state and every device in words, for a bug report.
    std::string diagnostics() const;

    /// Called when the state, a level or the devices change.
    std::function<void()> onChange;

  private:
    void centralDidUpdateState() override;
    void didConnect(BluetoothPeripheral& peripheral) override;
    void didDiscoverServices(BluetoothPeripheral& peripheral, const std::vector<BluetoothAttribute>& services) override;
    void didDiscoverCharacteristics(BluetoothPeripheral& peripheral,
                                    const std::vector<BluetoothAttribute>& characteristics) override;
    void didUpdateValue(BluetoothPeripheral& peripheral, const BluetoothAttribute& characteristic,
                        const std::vector<std::uint8_t>& value) override;

    void scheduleRefresh();
    void refresh();
    void refreshPeripherals();
    void take(const std::shared_ptr<BluetoothPeripheral>& peripheral);
    void readClassicDevices();
    void changed() const;

    std::unique_ptr<BluetoothCentral> central_;
    std::unique_ptr<ClassicBluetoothDevices> classicDevices_;
    std::unique_ptr<RepeatingTimer> timer_;
    bool isScheduled_ = false;
    std::map<std::string, std::shared_ptr<BluetoothPeripheral>> peripherals_; // by identifier
    std::map<std::string, int> levels_;                                       // percent, by identifier
    std::vector<AccessoryReading> classic_;
    std::string classicInfo_;
    std::string status_ = "starting";
    std::shared_ptr<void> life_; // what the timer watches: it may outlive the reader
};

} // namespace vantrix
