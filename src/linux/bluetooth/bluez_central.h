#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "accessories/bluetooth_central.h"
#include "accessories/classic_bluetooth_devices.h"
#include "linux/bluetooth/bluez_peripheral.h"
#include "linux/bluetooth/bluez_watch.h"

namespace vantrix {

/// BlueZ's LE devices. Connects to nothing itself, only asks devices that the system is connected to. Also announces
/// its state when devices come or go, which makes the reader list them again.
class BluezCentral : public QObject, public BluetoothCentral {
  public:
    explicit BluezCentral(std::shared_ptr<BluezWatch> watch);

    BluetoothState state() const override { return watch_->state(); }
    std::vector<std::shared_ptr<BluetoothPeripheral>> connectedPeripherals(const BluetoothUUID& service) override;
    void connect(BluetoothPeripheral& peripheral) override;

  private:
    /// What counts as a change in the lists of devices, LE and classic.
    struct Listed {
        QString path;
        bool isPeripheral = false;
        std::optional<uchar> level; ///< of classic devices, which announce it in no other way

        bool operator==(const Listed&) const = default;
    };

    void objectChanged(const QString& path);
    std::vector<Listed> listedNow() const;

    std::shared_ptr<BluezWatch> watch_;
    std::vector<Listed> listed_;
    std::map<QString, std::weak_ptr<BluezPeripheral>> peripherals_; // handed out, by path
};

/// BlueZ's classic devices, with the level that their profiles report.
class BluezClassicDevices : public ClassicBluetoothDevices {
  public:
    explicit BluezClassicDevices(std::shared_ptr<BluezWatch> watch) : watch_(std::move(watch)) {}

    std::vector<Device> paired() override;

  private:
    std::shared_ptr<BluezWatch> watch_;
};

} // namespace vantrix
