#pragma once

#import <CoreBluetooth/CBPeer.h>
#import <CoreBluetooth/CBUUID.h>

NS_ASSUME_NONNULL_BEGIN

@class CBCharacteristic, CBService;
@protocol CBPeripheralDelegate;

typedef NS_ENUM(NSInteger, CBPeripheralState) {
    CBPeripheralStateDisconnected = 0,
    CBPeripheralStateConnecting,
    CBPeripheralStateConnected,
    CBPeripheralStateDisconnecting API_AVAILABLE(macos(10.13)),
} API_AVAILABLE(macos(10.9));

API_AVAILABLE(macos(10.7))
@interface CBPeripheral : CBPeer

@property(weak, nonatomic, nullable) id<CBPeripheralDelegate> delegate;
@property(retain, readonly, nullable) NSString* name;
@property(readonly) CBPeripheralState state;
@property(retain, readonly, nullable) NSArray<CBService*>* services;

- (void)discoverServices:(nullable NSArray<CBUUID*>*)serviceUUIDs;
- (void)discoverCharacteristics:(nullable NSArray<CBUUID*>*)characteristicUUIDs forService:(CBService*)service;
- (void)readValueForCharacteristic:(CBCharacteristic*)characteristic;
- (void)setNotifyValue:(BOOL)enabled forCharacteristic:(CBCharacteristic*)characteristic;

@end

@protocol CBPeripheralDelegate <NSObject>

// Optional to the system. Required here, so that a misspelt one does not go unnoticed.
@required
- (void)peripheral:(CBPeripheral*)peripheral didDiscoverServices:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didDiscoverCharacteristicsForService:(CBService*)service
                                   error:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didUpdateValueForCharacteristic:(CBCharacteristic*)characteristic
                              error:(nullable NSError*)error;

@end

NS_ASSUME_NONNULL_END
