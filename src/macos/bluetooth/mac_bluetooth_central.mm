#include <map>

#include "macos/bluetooth/bluetooth_access.h"
#include "macos/bluetooth/bluetooth_peripheral.h"
#include "macos/bluetooth/classic_devices.h"
#include "macos/kernel/objc_text.h"
#include "monitor/qt_repeating_timer.h"
#include "platform/bluetooth.h"

#import <CoreBluetooth/CoreBluetooth.h>
#import <Foundation/Foundation.h>
#import <dispatch/dispatch.h>

namespace vantrix {
class MacCentral;
}

NS_ASSUME_NONNULL_BEGIN

@interface VantrixCentralDelegate : NSObject <CBCentralManagerDelegate>
@property(nonatomic, nullable) vantrix::MacCentral* owner; ///< null once it is gone
@end

NS_ASSUME_NONNULL_END

namespace vantrix {

class MacCentral final : public BluetoothCentral {
  public:
    MacCentral();
    ~MacCentral() override;

    BluetoothState state() const override;
    std::vector<std::shared_ptr<BluetoothPeripheral>> connectedPeripherals(const BluetoothUUID& service) override;
    /// The connection ends with the peripheral object.
    void connect(BluetoothPeripheral& peripheral) override;

    void stateUpdated();
    void connected(CBPeripheral* native);

  private:
    std::shared_ptr<MacPeripheral> known(const std::string& identifier) const;
    std::shared_ptr<MacPeripheral> handOut(CBPeripheral* native);

    CBCentralManager* manager_;
    VantrixCentralDelegate* events_;
    std::map<std::string, std::weak_ptr<MacPeripheral>> peripherals_; // in use, by identifier
};

} // namespace vantrix

@implementation VantrixCentralDelegate

- (void)centralManagerDidUpdateState:(CBCentralManager*)central {
    if (self.owner)
        self.owner->stateUpdated();
}

- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral {
    if (self.owner)
        self.owner->connected(peripheral);
}

@end

namespace vantrix {

MacCentral::MacCentral() : events_([[VantrixCentralDelegate alloc] init]) {
    events_.owner = this;
    manager_ = [[CBCentralManager alloc] initWithDelegate:events_
                                                    queue:dispatch_get_main_queue()
                                                  options:@{
                                                      CBCentralManagerOptionShowPowerAlertKey : @NO
                                                  }];
}

MacCentral::~MacCentral() {
    events_.owner = nullptr;
    manager_.delegate = nil;
}

BluetoothState MacCentral::state() const {
    switch (manager_.state) {
    case CBManagerStateUnsupported:
        return BluetoothState::unsupported;
    case CBManagerStateUnauthorized:
        return BluetoothState::unauthorized;
    case CBManagerStatePoweredOff:
        return BluetoothState::poweredOff;
    case CBManagerStatePoweredOn:
        return BluetoothState::poweredOn;
    case CBManagerStateUnknown:
    case CBManagerStateResetting:
        break;
    }
    return BluetoothState::unknown;
}

std::vector<std::shared_ptr<BluetoothPeripheral>> MacCentral::connectedPeripherals(const BluetoothUUID& service) {
    std::erase_if(peripherals_, [](const auto& entry) { return entry.second.expired(); });
    std::vector<std::shared_ptr<BluetoothPeripheral>> list;
    @autoreleasepool {
        for (CBPeripheral* native in [manager_ retrieveConnectedPeripheralsWithServices:@[ nativeUUID(service) ]])
            list.push_back(handOut(native));
    }
    return list;
}

std::shared_ptr<MacPeripheral> MacCentral::known(const std::string& identifier) const {
    const auto entry = peripherals_.find(identifier);
    return entry == peripherals_.end() ? nullptr : entry->second.lock();
}

std::shared_ptr<MacPeripheral> MacCentral::handOut(CBPeripheral* native) {
    const std::string identifier = textOf(native.identifier.UUIDString);
    auto peripheral = known(identifier);
    // The system may have released its object for the device and made a new one.
    if (!peripheral || peripheral->native() != native)
        peripherals_[identifier] = peripheral = std::make_shared<MacPeripheral>(native);
    return peripheral;
}

void MacCentral::connect(BluetoothPeripheral& peripheral) {
    @autoreleasepool {
        if (const auto alive = known(peripheral.identifier()))
            [manager_ connectPeripheral:alive->native() options:nil];
    }
}

void MacCentral::stateUpdated() {
    if (delegate)
        delegate->centralDidUpdateState();
}

void MacCentral::connected(CBPeripheral* native) {
    const auto peripheral = known(textOf(native.identifier.UUIDString));
    if (peripheral && delegate)
        delegate->didConnect(*peripheral);
}

Bluetooth makeBluetooth() {
    if (bluetoothAccess() == BluetoothAccess::undescribed)
        return {};
    @autoreleasepool {
        return {std::make_unique<MacCentral>(), makeClassicDevices(), std::make_unique<QtRepeatingTimer>()};
    }
}

} // namespace vantrix
