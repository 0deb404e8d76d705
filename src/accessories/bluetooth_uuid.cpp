#include "accessories/bluetooth_uuid.h"

#include "support/ascii_case.h"

namespace vantrix {
namespace {

constexpr std::size_t shortLength = 4;
constexpr std::string_view longStart = "0000";
constexpr std::string_view longEnd = "-0000-1000-8000-00805f9b34fb";

} // namespace

BluetoothUUID::BluetoothUUID(std::string_view text) : longForm_(loweredASCII(text)) {
    if (longForm_.size() == shortLength)
        longForm_.insert(0, longStart).append(longEnd);
}

std::string BluetoothUUID::shortest() const {
    const bool isAssigned = longForm_.size() == longStart.size() + shortLength + longEnd.size() &&
                            longForm_.starts_with(longStart) && longForm_.ends_with(longEnd);
    return isAssigned ? longForm_.substr(longStart.size(), shortLength) : longForm_;
}

} // namespace vantrix
