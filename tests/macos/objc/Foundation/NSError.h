#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSError : NSObject <NSCopying>

@property(readonly) NSInteger code;

@end

NS_ASSUME_NONNULL_END
