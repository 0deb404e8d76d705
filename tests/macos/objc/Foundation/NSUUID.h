#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

API_AVAILABLE(macos(10.8))
@interface NSUUID : NSObject <NSCopying>

@property(readonly, copy) NSString* UUIDString;

@end

NS_ASSUME_NONNULL_END
