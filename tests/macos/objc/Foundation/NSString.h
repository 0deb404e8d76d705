#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef unsigned short unichar;

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding {
    NSASCIIStringEncoding = 1,
    NSUTF8StringEncoding = 4,
    NSUTF16StringEncoding = 10,
};

@interface NSString : NSObject <NSCopying>

@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;

+ (instancetype)string;
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
- (instancetype)initWithCharacters:(const unichar*)characters length:(NSUInteger)length;
- (nullable instancetype)initWithBytes:(const void*)bytes length:(NSUInteger)len encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)aString;
- (void)getCharacters:(unichar*)buffer;

@end

@interface NSSimpleCString : NSString
@end

@interface NSConstantString : NSSimpleCString
@end

NS_ASSUME_NONNULL_END
