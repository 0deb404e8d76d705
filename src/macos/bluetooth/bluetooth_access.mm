#include "macos/bluetooth/bluetooth_access.h"

#include <unistd.h>

#import <CoreBluetooth/CoreBluetooth.h>
#import <Foundation/Foundation.h>

namespace vantrix {
namespace {

/// The program responsible for a process needs the description: the process itself if launchd started it, otherwise the
/// program that did, such as a terminal.
bool isDescribed() {
    const bool answersForItself = ::getppid() == 1;
    return answersForItself && [NSBundle.mainBundle objectForInfoDictionaryKey:@"NSBluetoothAlwaysUsageDescription"];
}

} // namespace

BluetoothAccess bluetoothAccess() {
    @autoreleasepool {
        switch (CBManager.authorization) {
        case CBManagerAuthorizationAllowedAlways:
            return BluetoothAccess::allowed;
        case CBManagerAuthorizationRestricted:
        case CBManagerAuthorizationDenied:
            return BluetoothAccess::denied;
        case CBManagerAuthorizationNotDetermined:
            break;
        }
        return isDescribed() ? BluetoothAccess::asksUser : BluetoothAccess::undescribed;
    }
}

} // namespace vantrix
