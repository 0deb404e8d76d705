#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class CLLocationManager;

@protocol CLLocationManagerDelegate <NSObject>
// Optional to the system. Required here, so that a misspelt one is found.
- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager;
@end

typedef NS_ENUM(int, CLAuthorizationStatus) {
    kCLAuthorizationStatusNotDetermined = 0,
    kCLAuthorizationStatusAuthorizedAlways = 3,
};

@interface CLLocationManager : NSObject
@property(nonatomic, readonly) CLAuthorizationStatus authorizationStatus;
@property(assign, nonatomic, nullable) id<CLLocationManagerDelegate> delegate;
- (void)requestAlwaysAuthorization;
@end

NS_ASSUME_NONNULL_END
