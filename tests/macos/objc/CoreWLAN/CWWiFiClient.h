#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class CWInterface;

API_AVAILABLE(macos(10.10))
@interface CWWiFiClient : NSObject

- (instancetype)init API_AVAILABLE(macos(10.10));
+ (CWWiFiClient*)sharedWiFiClient API_AVAILABLE(macos(10.10));
- (nullable CWInterface*)interfaceWithName:(nullable NSString*)name API_AVAILABLE(macos(10.10));

@end

NS_ASSUME_NONNULL_END
