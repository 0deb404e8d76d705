#include "macos/bluetooth/classic_devices.h"

#include "macos/kernel/objc_text.h"

#import <Foundation/Foundation.h>
#import <IOBluetooth/IOBluetooth.h>

namespace vantrix {
namespace {

/// The devices have these values, but no header declares them, so they may go away.
std::optional<int> levelOf(IOBluetoothDevice* device, NSString* key) {
    if (![device respondsToSelector:NSSelectorFromString(key)])
        return std::nullopt;
    id value = [device valueForKey:key];
    return [value isKindOfClass:[NSNumber class]] ? publishedLevel([value intValue]) : std::nullopt;
}

ClassicBluetoothDevices::Device described(IOBluetoothDevice* native) {
    ClassicBluetoothDevices::Device device;
    device.name = textOf(native.name);
    device.address = textOf(native.addressString);
    device.isConnected = [native isConnected];
    device.majorClass = static_cast<int>(native.deviceClassMajor);
    device.levels.single = levelOf(native, @"batteryPercentSingle");
    device.levels.combined = levelOf(native, @"batteryPercentCombined");
    device.levels.left = levelOf(native, @"batteryPercentLeft");
    device.levels.right = levelOf(native, @"batteryPercentRight");
    device.levels.box = levelOf(native, @"batteryPercentCase");
    return device;
}

class MacClassicDevices final : public ClassicBluetoothDevices {
  public:
    std::vector<Device> paired() override {
        @autoreleasepool {
            std::vector<Device> devices;
            for (IOBluetoothDevice* device in [IOBluetoothDevice pairedDevices])
                devices.push_back(described(device));
            return devices;
        }
    }
};

} // namespace

std::unique_ptr<ClassicBluetoothDevices> makeClassicDevices() {
    return std::make_unique<MacClassicDevices>();
}

} // namespace vantrix
