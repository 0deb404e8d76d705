#pragma once

#import <Foundation/NSEnumerator.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSFastEnumeration>

@property(readonly) NSUInteger count;
@property(nullable, nonatomic, readonly) ObjectType firstObject;

+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)anObject;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nullable])objects count:(NSUInteger)cnt;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)idx API_AVAILABLE(macos(10.8));
- (BOOL)containsObject:(ObjectType)anObject;

@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>

- (void)addObject:(ObjectType)anObject;

@end

NS_ASSUME_NONNULL_END
