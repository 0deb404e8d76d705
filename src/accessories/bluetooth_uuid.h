#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// Identifies a kind of Bluetooth service or characteristic. The short form of an assigned number ("180F") and its
/// long form ("0000180f-0000-1000-8000-00805f9b34fb"), in small letters or capitals, are one UUID.
class BluetoothUUID {
  public:
    explicit BluetoothUUID(std::string_view text);

    /// In small letters; an assigned number in its short form.
    std::string shortest() const;

    bool operator==(const BluetoothUUID&) const = default;

  private:
    std::string longForm_;
};

namespace bluetooth_uuid {

inline const BluetoothUUID batteryService("180F");
inline const BluetoothUUID batteryLevel("2A19"); ///< its characteristic; one byte, percent

} // namespace bluetooth_uuid

} // namespace vantrix
