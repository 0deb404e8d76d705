#include "accessories/bluetooth_uuid.h"

#include "accessories/accessory_symbol.h"

namespace vantrix {

BluetoothUUID::BluetoothUUID(std::string_view text) : longForm_(loweredASCII(text)) {
    constexpr std::size_t shortLength = 4;
    if (longForm_.size() == shortLength)
        longForm_ = "0000" + longForm_ + "-0000-1000-8000-00805f9b34fb";
}

} // namespace vantrix
