#pragma once

#include <memory>
#include <optional>

#include <QSet>

#include "accessories/bluetooth_central.h"
#include "linux/bluetooth/bluez_watch.h"

namespace vantrix {

/// An LE device of BlueZ, which usually keeps the GATT battery service to itself and reports the level through
/// org.bluez.Battery1: the device then stands in for that service and its characteristic, of one byte. Otherwise the
/// exported GATT objects are used.
class BluezPeripheral final : public BluetoothPeripheral, public std::enable_shared_from_this<BluezPeripheral> {
  public:
    BluezPeripheral(std::shared_ptr<BluezWatch> watch, const QString& path);

    std::string identifier() const override { return path_.toStdString(); }
    /// Kept when BlueZ goes away, as the level is.
    std::optional<std::string> name() const override { return name_; }
    std::string address() const override { return address_; }
    bool isConnected() const override;

    /// Answered as soon as there is something to discover.
    void discoverServices(const BluetoothUUID& kind) override;
    void discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) override;
    void readValue(const BluetoothAttribute& characteristic) override;
    void subscribe(const BluetoothAttribute& characteristic) override;

    const QString& path() const { return path_; }
    /// To be called for every change of an object.
    void objectChanged(const QString& path);

  private:
    void noteIdentity();
    bool isBattery(const BluetoothAttribute& attribute) const;
    std::vector<BluetoothAttribute> services(const BluetoothUUID& kind) const;
    void tell(const BluetoothAttribute& characteristic, const QByteArray& value);
    void tellPercentage(const BluetoothAttribute& characteristic);

    std::shared_ptr<BluezWatch> watch_;
    QString path_;
    std::optional<std::string> name_;
    std::string address_;
    std::optional<BluetoothUUID> wanted_; ///< service to discover, still without an answer
    std::vector<BluetoothAttribute> subscribed_;
    QSet<QString> beingRead_; ///< paths of characteristics
};

} // namespace vantrix
