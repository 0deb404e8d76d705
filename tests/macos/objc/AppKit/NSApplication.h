#pragma once

#import <AppKit/NSAppearance.h>
#import <AppKit/NSEvent.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
} API_AVAILABLE(macos(10.6));

@interface NSApplication : NSResponder <NSAppearanceCustomization>

@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, readonly, strong) NSEvent* currentEvent;

- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy API_AVAILABLE(macos(10.6));
- (void)activateIgnoringOtherApps:(BOOL)flag;

@end

APPKIT_EXTERN __kindof NSApplication* _Null_unspecified NSApp;

NS_ASSUME_NONNULL_END
