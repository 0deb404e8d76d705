#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.13))
@interface CBPeer : NSObject <NSCopying>

@property(readonly, nonatomic) NSUUID* identifier API_AVAILABLE(macos(10.13));

- (instancetype)init NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
