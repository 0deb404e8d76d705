#pragma once

#import <CoreBluetooth/CBAttribute.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.7))
@interface CBCharacteristic : CBAttribute

@property(retain, readonly, nullable) NSData* value;
@property(readonly) BOOL isNotifying;

@end

NS_ASSUME_NONNULL_END
