#include "macos/bluetooth/bluetooth_peripheral.h"

#include "macos/kernel/objc_text.h"

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

/// Ignores failures.
@interface VantrixPeripheralDelegate : NSObject <CBPeripheralDelegate>
@property(nonatomic, nullable) vantrix::MacPeripheral* owner; ///< null once it is gone
@end

NS_ASSUME_NONNULL_END

@implementation VantrixPeripheralDelegate

- (void)peripheral:(CBPeripheral*)peripheral didDiscoverServices:(NSError*)error {
    if (self.owner && !error)
        self.owner->servicesDiscovered();
}

- (void)peripheral:(CBPeripheral*)peripheral
    didDiscoverCharacteristicsForService:(CBService*)service
                                   error:(NSError*)error {
    if (self.owner && !error)
        self.owner->characteristicsDiscovered(service);
}

- (void)peripheral:(CBPeripheral*)peripheral
    didUpdateValueForCharacteristic:(CBCharacteristic*)characteristic
                              error:(NSError*)error {
    if (self.owner && !error)
        self.owner->valueUpdated(characteristic);
}

@end

namespace vantrix {
namespace {

/// Two services of a device may have the same UUID, so the object is the identity.
std::string identifierOf(CBAttribute* attribute) {
    return std::to_string(reinterpret_cast<std::uintptr_t>((__bridge void*)attribute));
}

BluetoothAttribute attributeOf(CBAttribute* attribute) {
    return {BluetoothUUID(textOf(attribute.UUID.UUIDString)), identifierOf(attribute)};
}

std::vector<BluetoothAttribute> attributesOf(NSArray<CBAttribute*>* attributes) {
    std::vector<BluetoothAttribute> list;
    for (CBAttribute* attribute in attributes)
        list.push_back(attributeOf(attribute));
    return list;
}

} // namespace

CBUUID* nativeUUID(const BluetoothUUID& uuid) {
    return [CBUUID UUIDWithString:nativeText(uuid.shortest())];
}

MacPeripheral::MacPeripheral(CBPeripheral* native)
    : native_(native), events_([[VantrixPeripheralDelegate alloc] init]) {
    events_.owner = this;
    native_.delegate = events_;
}

MacPeripheral::~MacPeripheral() {
    events_.owner = nullptr;
    native_.delegate = nil;
}

std::string MacPeripheral::identifier() const {
    @autoreleasepool {
        return textOf(native_.identifier.UUIDString);
    }
}

std::optional<std::string> MacPeripheral::name() const {
    @autoreleasepool {
        NSString* name = native_.name;
        return name ? std::optional(textOf(name)) : std::nullopt;
    }
}

void MacPeripheral::discoverServices(const BluetoothUUID& kind) {
    @autoreleasepool {
        [native_ discoverServices:@[ nativeUUID(kind) ]];
    }
}

void MacPeripheral::discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) {
    if (CBService* found = serviceOf(service))
        [native_ discoverCharacteristics:@[ nativeUUID(kind) ] forService:found];
}

void MacPeripheral::readValue(const BluetoothAttribute& characteristic) {
    if (CBCharacteristic* found = characteristicOf(characteristic))
        [native_ readValueForCharacteristic:found];
}

void MacPeripheral::subscribe(const BluetoothAttribute& characteristic) {
    if (CBCharacteristic* found = characteristicOf(characteristic))
        [native_ setNotifyValue:YES forCharacteristic:found];
}

void MacPeripheral::servicesDiscovered() {
    if (delegate)
        delegate->didDiscoverServices(*this, attributesOf(native_.services));
}

void MacPeripheral::characteristicsDiscovered(CBService* service) {
    if (delegate)
        delegate->didDiscoverCharacteristics(*this, attributesOf(service.characteristics));
}

void MacPeripheral::valueUpdated(CBCharacteristic* characteristic) {
    NSData* value = characteristic.value;
    const auto* bytes = static_cast<const std::uint8_t*>(value.bytes);
    if (delegate)
        delegate->didUpdateValue(*this, attributeOf(characteristic), {bytes, bytes + value.length});
}

CBService* MacPeripheral::serviceOf(const BluetoothAttribute& attribute) const {
    for (CBService* service in native_.services)
        if (identifierOf(service) == attribute.identifier)
            return service;
    return nil;
}

CBCharacteristic* MacPeripheral::characteristicOf(const BluetoothAttribute& attribute) const {
    for (CBService* service in native_.services)
        for (CBCharacteristic* characteristic in service.characteristics)
            if (identifierOf(characteristic) == attribute.identifier)
                return characteristic;
    return nil;
}

} // namespace vantrix
