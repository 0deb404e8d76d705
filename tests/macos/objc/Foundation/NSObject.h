#pragma once

#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@protocol NSObject

- (BOOL)isEqual:(nullable id)object;
@property(readonly) NSUInteger hash;
- (Class)class;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)conformsToProtocol:(Protocol*)aProtocol;
- (BOOL)respondsToSelector:(SEL)aSelector;
@property(readonly, copy) NSString* description;

@end

@protocol NSCopying

- (id)copyWithZone:(nullable struct _NSZone*)zone;

@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>

+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)dealloc;
- (id)copy;

@end

NS_ASSUME_NONNULL_END
