#pragma once

#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>
#import <AppKit/NSViewController.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSPopoverDelegate;

typedef NS_ENUM(NSInteger, NSPopoverBehavior) {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1,
    NSPopoverBehaviorSemitransient = 2,
};

API_AVAILABLE(macos(10.7))
@interface NSPopover : NSResponder <NSAppearanceCustomization>

@property(nullable, weak) id<NSPopoverDelegate> delegate;
@property NSPopoverBehavior behavior;
@property BOOL animates;
@property(nullable, strong) NSViewController* contentViewController;
@property NSSize contentSize;
@property(readonly, getter=isShown) BOOL shown;

- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)showRelativeToRect:(NSRect)positioningRect
                    ofView:(NSView*)positioningView
             preferredEdge:(NSRectEdge)preferredEdge;
- (IBAction)performClose:(nullable id)sender;
- (void)close;

@end

@protocol NSPopoverDelegate <NSObject>

// The system calls these optional; here they are required, so that a misspelt one is found.
- (void)popoverWillClose:(NSNotification*)notification API_AVAILABLE(macos(10.7));
- (void)popoverDidClose:(NSNotification*)notification API_AVAILABLE(macos(10.7));

@end

NS_ASSUME_NONNULL_END
