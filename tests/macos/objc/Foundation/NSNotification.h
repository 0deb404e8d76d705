#pragma once

#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSDictionary, NSOperationQueue;

typedef NSString* NSNotificationName NS_TYPED_EXTENSIBLE_ENUM;

@interface NSNotification : NSObject <NSCopying>

@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, strong) id object;

- (instancetype)init NS_UNAVAILABLE;

@end

@interface NSNotificationCenter : NSObject

@property(class, readonly, strong) NSNotificationCenter* defaultCenter;

- (void)addObserver:(id)observer
           selector:(SEL)aSelector
               name:(nullable NSNotificationName)aName
             object:(nullable id)anObject;
- (void)removeObserver:(id)observer;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block API_AVAILABLE(macos(10.6));

@end

NS_ASSUME_NONNULL_END
