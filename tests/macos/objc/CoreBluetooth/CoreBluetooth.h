#pragma once

#import <Foundation/Foundation.h>
#import <dispatch/dispatch.h>

NS_ASSUME_NONNULL_BEGIN

@class CBCharacteristic, CBPeripheral, CBService;

API_AVAILABLE(macos(10.7))
@interface CBUUID : NSObject <NSCopying>
@property(nonatomic, readonly) NSString* UUIDString API_AVAILABLE(macos(10.10));
+ (CBUUID*)UUIDWithString:(NSString*)theString;
@end

API_AVAILABLE(macos(10.13))
@interface CBAttribute : NSObject
@property(readonly, nonatomic) CBUUID* UUID;
- (instancetype)init NS_UNAVAILABLE;
@end

API_AVAILABLE(macos(10.7))
@interface CBService : CBAttribute
@property(retain, readonly, nullable) NSArray<CBCharacteristic*>* characteristics;
@end

API_AVAILABLE(macos(10.7))
@interface CBCharacteristic : CBAttribute
@property(retain, readonly, nullable) NSData* value;
@end

// What the system calls optional in both delegates is required here, so that a misspelt method is found.

@protocol CBPeripheralDelegate <NSObject>
- (void)peripheral:(CBPeripheral*)peripheral didDiscoverServices:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didDiscoverCharacteristicsForService:(CBService*)service
                                   error:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didUpdateValueForCharacteristic:(CBCharacteristic*)characteristic
                              error:(nullable NSError*)error;
@end

typedef NS_ENUM(NSInteger, CBPeripheralState) { CBPeripheralStateConnected = 2 } API_AVAILABLE(macos(10.9));

API_AVAILABLE(macos(10.13))
@interface CBPeer : NSObject <NSCopying>
@property(readonly, nonatomic) NSUUID* identifier API_AVAILABLE(macos(10.13));
- (instancetype)init NS_UNAVAILABLE;
@end

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

typedef NS_ENUM(NSInteger, CBManagerState) {
    CBManagerStateUnknown = 0,
    CBManagerStateResetting,
    CBManagerStateUnsupported,
    CBManagerStateUnauthorized,
    CBManagerStatePoweredOff,
    CBManagerStatePoweredOn,
} API_AVAILABLE(macos(10.13));

typedef NS_ENUM(NSInteger, CBManagerAuthorization) {
    CBManagerAuthorizationNotDetermined = 0,
    CBManagerAuthorizationRestricted,
    CBManagerAuthorizationDenied,
    CBManagerAuthorizationAllowedAlways,
} API_AVAILABLE(macos(10.15));

API_AVAILABLE(macos(10.13))
@interface CBManager : NSObject
@property(nonatomic, assign, readonly) CBManagerState state;
@property(class, nonatomic, assign, readonly) CBManagerAuthorization authorization API_AVAILABLE(macos(10.15));
@end

@class CBCentralManager;

@protocol CBCentralManagerDelegate <NSObject>
- (void)centralManagerDidUpdateState:(CBCentralManager*)central;
- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral;
@end

extern NSString* const CBCentralManagerOptionShowPowerAlertKey API_AVAILABLE(macos(10.9));

API_AVAILABLE(macos(10.7))
@interface CBCentralManager : CBManager
@property(nonatomic, assign, nullable) id<CBCentralManagerDelegate> delegate;
- (instancetype)initWithDelegate:(nullable id<CBCentralManagerDelegate>)delegate
                           queue:(nullable dispatch_queue_t)queue
                         options:(nullable NSDictionary<NSString*, id>*)options API_AVAILABLE(macos(10.9));
- (NSArray<CBPeripheral*>*)retrieveConnectedPeripheralsWithServices:(NSArray<CBUUID*>*)serviceUUIDs
    API_AVAILABLE(macos(10.9));
- (void)connectPeripheral:(CBPeripheral*)peripheral options:(nullable NSDictionary<NSString*, id>*)options;
@end

NS_ASSUME_NONNULL_END
