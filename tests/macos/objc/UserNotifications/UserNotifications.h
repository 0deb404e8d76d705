#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class UNNotificationTrigger, UNUserNotificationCenter;

@interface UNNotificationSound : NSObject <NSCopying>
@property(class, copy, readonly) UNNotificationSound* defaultSound;
- (instancetype)init NS_UNAVAILABLE;
@end

@interface UNNotificationContent : NSObject <NSCopying>
@end

@interface UNMutableNotificationContent : UNNotificationContent
@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy, nullable) UNNotificationSound* sound;
@end

@interface UNNotificationRequest : NSObject <NSCopying>
- (instancetype)init NS_UNAVAILABLE;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
@property(copy, readonly) NSString* identifier;
@end

@interface UNNotification : NSObject <NSCopying>
- (instancetype)init NS_UNAVAILABLE;
@property(copy, readonly) UNNotificationRequest* request;
@end

extern NSString* const UNNotificationDefaultActionIdentifier;

@interface UNNotificationResponse : NSObject <NSCopying>
- (instancetype)init NS_UNAVAILABLE;
@property(copy, readonly) UNNotification* notification;
@property(copy, readonly) NSString* actionIdentifier;
@end

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
    UNAuthorizationOptionSound = (1 << 1),
    UNAuthorizationOptionAlert = (1 << 2),
};

typedef NS_OPTIONS(NSUInteger, UNNotificationPresentationOptions) {
    UNNotificationPresentationOptionSound = (1 << 1),
    UNNotificationPresentationOptionBanner = (1 << 4),
};

typedef NS_ENUM(NSInteger, UNAuthorizationStatus) {
    UNAuthorizationStatusNotDetermined = 0,
    UNAuthorizationStatusDenied,
    UNAuthorizationStatusAuthorized,
    UNAuthorizationStatusProvisional,
};

@interface UNNotificationSettings : NSObject <NSCopying>
@property(readonly) UNAuthorizationStatus authorizationStatus;
- (instancetype)init NS_UNAVAILABLE;
@end

@protocol UNUserNotificationCenterDelegate <NSObject>
// Optional to the system. Required here, so that a misspelt one is found.
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))completionHandler;
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler;
@end

@interface UNUserNotificationCenter : NSObject
@property(weak, nullable) id<UNUserNotificationCenterDelegate> delegate;
+ (UNUserNotificationCenter*)currentNotificationCenter;
- (instancetype)init NS_UNAVAILABLE;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)getNotificationSettingsWithCompletionHandler:(void (^)(UNNotificationSettings* settings))completionHandler;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;
@end

NS_ASSUME_NONNULL_END
