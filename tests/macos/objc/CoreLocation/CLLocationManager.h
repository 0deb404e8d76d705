#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@protocol CLLocationManagerDelegate;

typedef NS_ENUM(int, CLAuthorizationStatus) {
    kCLAuthorizationStatusNotDetermined = 0,
    kCLAuthorizationStatusRestricted,
    kCLAuthorizationStatusDenied,
    kCLAuthorizationStatusAuthorizedAlways API_AVAILABLE(macos(10.12)),
};

API_AVAILABLE(macos(10.6))
@interface CLLocationManager : NSObject

@property(nonatomic, readonly) CLAuthorizationStatus authorizationStatus API_AVAILABLE(macos(11.0));
@property(assign, nonatomic, nullable) id<CLLocationManagerDelegate> delegate;

- (void)requestAlwaysAuthorization API_AVAILABLE(macos(10.15));

@end

NS_ASSUME_NONNULL_END
