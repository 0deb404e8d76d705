#pragma once

#import <CoreBluetooth/CBManager.h>
#import <CoreBluetooth/CBUUID.h>
#import <dispatch/dispatch.h>

NS_ASSUME_NONNULL_BEGIN

@class CBCentralManager, CBPeripheral;

extern NSString* const CBCentralManagerOptionShowPowerAlertKey API_AVAILABLE(macos(10.9));

@protocol CBCentralManagerDelegate <NSObject>

@required
- (void)centralManagerDidUpdateState:(CBCentralManager*)central;

// Optional to the system. Required here, so that a misspelt one does not go unnoticed.
@required
- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral;

@end

API_AVAILABLE(macos(10.7))
@interface CBCentralManager : CBManager

@property(nonatomic, assign, nullable) id<CBCentralManagerDelegate> delegate;

- (instancetype)init;
- (instancetype)initWithDelegate:(nullable id<CBCentralManagerDelegate>)delegate
                           queue:(nullable dispatch_queue_t)queue
                         options:(nullable NSDictionary<NSString*, id>*)options API_AVAILABLE(macos(10.9));

- (NSArray<CBPeripheral*>*)retrieveConnectedPeripheralsWithServices:(NSArray<CBUUID*>*)serviceUUIDs
    API_AVAILABLE(macos(10.9));
- (void)connectPeripheral:(CBPeripheral*)peripheral options:(nullable NSDictionary<NSString*, id>*)options;

@end

NS_ASSUME_NONNULL_END
