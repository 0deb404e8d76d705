#pragma once

#include "accessories/bluetooth_central.h"

#import <CoreBluetooth/CoreBluetooth.h>

NS_ASSUME_NONNULL_BEGIN

@class VantrixPeripheralDelegate;

namespace vantrix {

/// Short for an assigned number, as the system writes it.
CBUUID* nativeUUID(const BluetoothUUID& uuid);

/// A CBPeripheral. Its connection lasts as long as this object.
class MacPeripheral final : public BluetoothPeripheral {
  public:
    explicit MacPeripheral(CBPeripheral* native);
    ~MacPeripheral() override;
    MacPeripheral(const MacPeripheral&) = delete;
    MacPeripheral& operator=(const MacPeripheral&) = delete;

    CBPeripheral* native() const { return native_; }

    std::string identifier() const override;
    std::optional<std::string> name() const override;
    /// The system does not tell.
    std::string address() const override { return {}; }
    bool isConnected() const override { return native_.state == CBPeripheralStateConnected; }

    void discoverServices(const BluetoothUUID& kind) override;
    void discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) override;
    void readValue(const BluetoothAttribute& characteristic) override;
    void subscribe(const BluetoothAttribute& characteristic) override;

    void servicesDiscovered();
    void characteristicsDiscovered(CBService* service);
    void valueUpdated(CBCharacteristic* characteristic);

  private:
    CBService* _Nullable serviceOf(const BluetoothAttribute& attribute) const;
    CBCharacteristic* _Nullable characteristicOf(const BluetoothAttribute& attribute) const;

    CBPeripheral* native_;
    VantrixPeripheralDelegate* events_;
};

} // namespace vantrix

NS_ASSUME_NONNULL_END
