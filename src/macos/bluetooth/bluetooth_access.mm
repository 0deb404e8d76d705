#include "macos/bluetooth/bluetooth_access.h"

#include <unistd.h>

#import <CoreBluetooth/CoreBluetooth.h>
#import <Foundation/Foundation.h>

namespace vantrix {
namespace {

/// Permission is given to whoever is responsible for a process: itself, when the system's first process started it;
/// otherwise the program that did, a terminal for example, and then it is that one's description that counts.
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
