#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSOperationQueue : NSObject

@property(class, readonly, strong) NSOperationQueue* mainQueue API_AVAILABLE(macos(10.6));

- (void)addOperationWithBlock:(void (^)(void))block API_AVAILABLE(macos(10.6));

@end

NS_ASSUME_NONNULL_END
