#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.7))
@interface CBUUID : NSObject <NSCopying>

@property(nonatomic, readonly) NSString* UUIDString API_AVAILABLE(macos(10.10));

+ (CBUUID*)UUIDWithString:(NSString*)theString;

@end

NS_ASSUME_NONNULL_END
