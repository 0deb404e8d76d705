#pragma once

#import <Foundation/NSEnumerator.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSSet<__covariant ObjectType> : NSObject <NSCopying, NSFastEnumeration>

- (BOOL)containsObject:(ObjectType)anObject;

@end

@interface NSMutableSet<ObjectType> : NSSet <ObjectType>

- (void)addObject:(ObjectType)object;

@end

NS_ASSUME_NONNULL_END
