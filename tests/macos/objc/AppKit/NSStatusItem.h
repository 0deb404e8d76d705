#pragma once

#import <AppKit/NSMenu.h>
#import <AppKit/NSStatusBarButton.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSStatusItem : NSObject

@property CGFloat length;
@property(nullable, strong) NSMenu* menu;
@property(nullable, readonly, strong) NSStatusBarButton* button API_AVAILABLE(macos(10.10));

@end

NS_ASSUME_NONNULL_END
