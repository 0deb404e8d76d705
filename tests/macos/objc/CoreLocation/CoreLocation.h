#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class CLLocationManager;

@protocol CLLocationManagerDelegate <NSObject>
// Optional to the system. Required here, so that a misspelt one is found.
- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager API_AVAILABLE(macos(11.0));
@end

typedef NS_ENUM(int, CLAuthorizationStatus) {
    kCLAuthorizationStatusNotDetermined = 0,
    kCLAuthorizationStatusAuthorizedAlways API_AVAILABLE(macos(10.12)) = 3,
};

API_AVAILABLE(macos(10.6))
@interface CLLocationManager : NSObject
@property(nonatomic, readonly) CLAuthorizationStatus authorizationStatus API_AVAILABLE(macos(11.0));
@property(assign, nonatomic, nullable) id<CLLocationManagerDelegate> delegate;
- (void)requestAlwaysAuthorization API_AVAILABLE(macos(10.15));
@end

NS_ASSUME_NONNULL_END
