#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class CLLocationManager;

@protocol CLLocationManagerDelegate <NSObject>

// Optional to the system. Required here, so that a misspelt one does not go unnoticed.
@required
- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager API_AVAILABLE(macos(11.0));

@end

NS_ASSUME_NONNULL_END
