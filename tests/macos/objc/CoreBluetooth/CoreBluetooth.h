#pragma once

#import <Foundation/Foundation.h>
#import <dispatch/dispatch.h>

NS_ASSUME_NONNULL_BEGIN

@class CBCharacteristic, CBPeripheral, CBService;

@interface CBUUID : NSObject <NSCopying>
@property(nonatomic, readonly) NSString* UUIDString;
+ (CBUUID*)UUIDWithString:(NSString*)theString;
@end

@interface CBAttribute : NSObject
@property(readonly, nonatomic) CBUUID* UUID;
- (instancetype)init NS_UNAVAILABLE;
@end

@interface CBService : CBAttribute
@property(retain, readonly, nullable) NSArray<CBCharacteristic*>* characteristics;
@end

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

typedef NS_ENUM(NSInteger, CBPeripheralState) { CBPeripheralStateConnected = 2 };

@interface CBPeer : NSObject <NSCopying>
@property(readonly, nonatomic) NSUUID* identifier;
- (instancetype)init NS_UNAVAILABLE;
@end

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
};

typedef NS_ENUM(NSInteger, CBManagerAuthorization) {
    CBManagerAuthorizationNotDetermined = 0,
    CBManagerAuthorizationRestricted,
    CBManagerAuthorizationDenied,
    CBManagerAuthorizationAllowedAlways,
};

@interface CBManager : NSObject
@property(nonatomic, assign, readonly) CBManagerState state;
@property(class, nonatomic, assign, readonly) CBManagerAuthorization authorization;
@end

@class CBCentralManager;

@protocol CBCentralManagerDelegate <NSObject>
- (void)centralManagerDidUpdateState:(CBCentralManager*)central;
- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral;
@end

extern NSString* const CBCentralManagerOptionShowPowerAlertKey;

@interface CBCentralManager : CBManager
@property(nonatomic, assign, nullable) id<CBCentralManagerDelegate> delegate;
- (instancetype)initWithDelegate:(nullable id<CBCentralManagerDelegate>)delegate
                           queue:(nullable dispatch_queue_t)queue
                         options:(nullable NSDictionary<NSString*, id>*)options;
- (NSArray<CBPeripheral*>*)retrieveConnectedPeripheralsWithServices:(NSArray<CBUUID*>*)serviceUUIDs;
- (void)connectPeripheral:(CBPeripheral*)peripheral options:(nullable NSDictionary<NSString*, id>*)options;
@end

NS_ASSUME_NONNULL_END
