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

API_AVAILABLE(macos(10.10))
@interface CWWiFiClient : NSObject
- (instancetype)init API_AVAILABLE(macos(10.10));
+ (CWWiFiClient*)sharedWiFiClient API_AVAILABLE(macos(10.10));
- (nullable CWInterface*)interfaceWithName:(nullable NSString*)name API_AVAILABLE(macos(10.10));
@end

NS_ASSUME_NONNULL_END
