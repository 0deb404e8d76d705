#pragma once

#import <AppKit/NSButton.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.10))
@interface NSStatusBarButton : NSButton
@end

NS_ASSUME_NONNULL_END
