#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSValue : NSObject <NSCopying>

@end

@interface NSNumber : NSValue

@property(readonly) int intValue;
@property(readonly) double doubleValue;
@property(readonly) BOOL boolValue;

+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithBool:(BOOL)value;

@end

NS_ASSUME_NONNULL_END
