#pragma once

namespace vantrix {

/// What happens if this process uses Bluetooth.
enum class BluetoothAccess {
    allowed,
    asksUser,   ///< not yet decided; the system will ask
    denied,     ///< by the user or an administrator
    undescribed ///< the system ends the process: it has no usage description
};

/// Asks the user nothing.
BluetoothAccess bluetoothAccess();

} // namespace vantrix
