#pragma once

#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>
#import <AppKit/NSScreen.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWindow : NSResponder <NSAppearanceCustomization>

@property(nullable, readonly, strong) NSScreen* screen;

- (void)makeKeyWindow;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
- (NSRect)convertRectToScreen:(NSRect)rect API_AVAILABLE(macos(10.7));

@end

NS_ASSUME_NONNULL_END
