#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "accessories/bluetooth_uuid.h"

namespace vantrix {

/// A service or a characteristic of one peripheral.
struct BluetoothAttribute {
    BluetoothUUID uuid;
    std::string identifier; ///< the system's own, to hand back to it
};

/// A Bluetooth LE device. Main thread only. Answers come through the delegate, during the call that asks or later; a
/// request that fails gets none.
class BluetoothPeripheral {
  public:
    class Delegate {
      public:
        virtual void didDiscoverServices(BluetoothPeripheral& peripheral,
                                         const std::vector<BluetoothAttribute>& services) = 0;
        virtual void didDiscoverCharacteristics(BluetoothPeripheral& peripheral,
                                                const std::vector<BluetoothAttribute>& characteristics) = 0;
        /// A value that was asked for, or that the peripheral notified of.
        virtual void didUpdateValue(BluetoothPeripheral& peripheral, const BluetoothAttribute& characteristic,
                                    const std::vector<std::uint8_t>& value) = 0;

      protected:
        ~Delegate() = default;
    };

    virtual ~BluetoothPeripheral() = default;

    /// Stays the same for as long as the system knows the device.
    virtual std::string identifier() const = 0;
    virtual std::optional<std::string> name() const = 0;
    /// The radio's, "AA:BB:CC:DD:EE:FF"; empty where the system keeps it secret.
    virtual std::string address() const = 0;
    /// Connected to this program, so that it can be asked.
    virtual bool isConnected() const = 0;

    virtual void discoverServices(const BluetoothUUID& kind) = 0;
    virtual void discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) = 0;
    virtual void readValue(const BluetoothAttribute& characteristic) = 0;
    virtual void subscribe(const BluetoothAttribute& characteristic) = 0;

    Delegate* delegate = nullptr; ///< outlives the peripheral, or is taken away first
};

enum class BluetoothState { unknown, unsupported, unauthorized, poweredOff, poweredOn };

/// The system's Bluetooth LE side. Main thread only; it never scans for devices and never waits.
class BluetoothCentral {
  public:
    class Delegate {
      public:
        /// The state changed or, where the system reports that too, the set of connected devices.
        virtual void centralDidUpdateState() = 0;
        virtual void didConnect(BluetoothPeripheral& peripheral) = 0;

      protected:
        ~Delegate() = default;
    };

    virtual ~BluetoothCentral() = default;

    /// `unknown` until the delegate hears of another one.
    virtual BluetoothState state() const = 0;
    /// The peripherals connected to the system, by whichever program, that offer a service.
    virtual std::vector<std::shared_ptr<BluetoothPeripheral>> connectedPeripherals(const BluetoothUUID& service) = 0;
    /// Attaches this program to a peripheral that the system is connected to.
    virtual void connect(BluetoothPeripheral& peripheral) = 0;

    Delegate* delegate = nullptr; ///< outlives the central, or is taken away first
};

} // namespace vantrix
