#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class UNNotificationSound;

API_AVAILABLE(macos(10.14))
@interface UNNotificationContent : NSObject <NSCopying>

@property(readonly, copy) NSString* title;
@property(readonly, copy) NSString* body;
@property(readonly, copy, nullable) UNNotificationSound* sound;

@end

API_AVAILABLE(macos(10.14))
@interface UNMutableNotificationContent : UNNotificationContent

@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy, nullable) UNNotificationSound* sound;

@end

NS_ASSUME_NONNULL_END
