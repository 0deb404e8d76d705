#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSUserDefaults : NSObject

@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;

- (nullable instancetype)initWithSuiteName:(nullable NSString*)suitename API_AVAILABLE(macos(10.9));

- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
- (BOOL)synchronize;

@end

NS_ASSUME_NONNULL_END
