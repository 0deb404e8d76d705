#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationSound : NSObject <NSCopying>

@property(class, copy, readonly) UNNotificationSound* defaultSound;

- (instancetype)init NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
