#pragma once

#include <memory>

#include "accessories/bluetooth_central.h"
#include "accessories/classic_bluetooth_devices.h"
#include "support/repeating_timer.h"

namespace vantrix {

/// What the Bluetooth battery reader needs of the system; without a central there is no reader.
struct Bluetooth {
    std::unique_ptr<BluetoothCentral> central;
    std::unique_ptr<ClassicBluetoothDevices> classicDevices; ///< may be null
    std::unique_ptr<RepeatingTimer> timer;                   ///< never null when there is a central
};

/// This machine's Bluetooth; empty where there is no service to ask. Made after the application object; waits for
/// nothing.
Bluetooth makeBluetooth();

} // namespace vantrix
