#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class UNNotificationContent, UNNotificationTrigger;

API_AVAILABLE(macos(10.14))
@interface UNNotificationRequest : NSObject <NSCopying>

- (instancetype)init NS_UNAVAILABLE;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;

@end

NS_ASSUME_NONNULL_END
