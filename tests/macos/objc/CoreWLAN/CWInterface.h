#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.6))
@interface CWInterface : NSObject

@property(readonly, nullable) NSString* interfaceName API_AVAILABLE(macos(10.7));

- (nullable NSString*)ssid API_AVAILABLE(macos(10.7));
- (NSInteger)rssiValue API_AVAILABLE(macos(10.7));
- (NSInteger)noiseMeasurement API_AVAILABLE(macos(10.7));
- (double)transmitRate API_AVAILABLE(macos(10.7));

@end

NS_ASSUME_NONNULL_END
