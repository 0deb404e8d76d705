#pragma once

#import <CoreBluetooth/CBUUID.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.13))
@interface CBAttribute : NSObject

@property(readonly, nonatomic) CBUUID* UUID;

- (instancetype)init NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
