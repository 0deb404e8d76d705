#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface CWInterface : NSObject
@property(readonly, nullable) NSString* interfaceName;
- (nullable NSString*)ssid;
- (NSInteger)rssiValue;
- (NSInteger)noiseMeasurement;
- (double)transmitRate;
@end

@interface CWWiFiClient : NSObject
- (instancetype)init;
+ (CWWiFiClient*)sharedWiFiClient;
- (nullable CWInterface*)interfaceWithName:(nullable NSString*)name;
@end

NS_ASSUME_NONNULL_END
