#pragma once

namespace vantrix {

/// What the system would do if this process turned to Bluetooth.
enum class BluetoothAccess {
    allowed,
    asksUser,   ///< it has not been decided; the user will be asked
    denied,     ///< by the user or by whoever manages the machine
    undescribed ///< end it: nothing tells the user what for
};

/// Asks nobody but the system's keeper of permissions.
BluetoothAccess bluetoothAccess();

} // namespace vantrix
