#pragma once

#include <memory>

#include "accessories/classic_bluetooth_devices.h"

namespace vantrix {

/// The paired devices as IOBluetooth lists them.
std::unique_ptr<ClassicBluetoothDevices> makeClassicDevices();

} // namespace vantrix
