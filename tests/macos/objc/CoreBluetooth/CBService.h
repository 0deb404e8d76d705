#pragma once

#import <CoreBluetooth/CBAttribute.h>

NS_ASSUME_NONNULL_BEGIN

@class CBCharacteristic;

API_AVAILABLE(macos(10.7))
@interface CBService : CBAttribute

@property(retain, readonly, nullable) NSArray<CBCharacteristic*>* characteristics;

@end

NS_ASSUME_NONNULL_END
