#pragma once

#import <Foundation/NSString.h>

// The system has this in NSObjCRuntime.h.
FOUNDATION_EXPORT SEL _Nonnull NSSelectorFromString(NSString* _Nonnull aSelectorName);
