#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class UNNotification, UNNotificationRequest, UNUserNotificationCenter;

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
    UNAuthorizationOptionBadge = (1 << 0),
    UNAuthorizationOptionSound = (1 << 1),
    UNAuthorizationOptionAlert = (1 << 2),
} API_AVAILABLE(macos(10.14));

typedef NS_OPTIONS(NSUInteger, UNNotificationPresentationOptions) {
    UNNotificationPresentationOptionBadge = (1 << 0),
    UNNotificationPresentationOptionSound = (1 << 1),
    UNNotificationPresentationOptionList API_AVAILABLE(macos(11.0)) = (1 << 3),
    UNNotificationPresentationOptionBanner API_AVAILABLE(macos(11.0)) = (1 << 4),
} API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.14))
@protocol UNUserNotificationCenterDelegate <NSObject>

// Optional to the system. Required here, so that a misspelt one does not go unnoticed.
@required
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))completionHandler;

@end

API_AVAILABLE(macos(10.14))
@interface UNUserNotificationCenter : NSObject

@property(weak, nullable) id<UNUserNotificationCenterDelegate> delegate;

+ (UNUserNotificationCenter*)currentNotificationCenter;
- (instancetype)init NS_UNAVAILABLE;

- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;

@end

NS_ASSUME_NONNULL_END
