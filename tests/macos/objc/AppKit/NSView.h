#pragma once

#import <AppKit/NSAccessibilityProtocols.h>
#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSWindow;

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
    NSViewNotSizable = 0,
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
};

@interface NSView : NSResponder <NSAppearanceCustomization, NSAccessibility>

@property(nullable, readonly, assign) NSWindow* window;
@property NSRect frame;
@property NSRect bounds;
@property NSAutoresizingMaskOptions autoresizingMask;

- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (void)setFrameSize:(NSSize)newSize;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;

@end

NS_ASSUME_NONNULL_END
