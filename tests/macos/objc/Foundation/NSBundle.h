#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSBundle : NSObject

@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;

- (nullable id)objectForInfoDictionaryKey:(NSString*)key;

@end

NS_ASSUME_NONNULL_END
