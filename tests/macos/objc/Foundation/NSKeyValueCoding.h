#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSObject (NSKeyValueCoding)

- (nullable id)valueForKey:(NSString*)key;

@end

NS_ASSUME_NONNULL_END
