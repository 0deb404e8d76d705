#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWorkspace : NSObject

@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;

- (BOOL)openURL:(NSURL*)url;

@end

@interface NSWorkspace (NSWorkspaceAccessibilityDisplay)

@property(readonly) BOOL accessibilityDisplayShouldReduceMotion API_AVAILABLE(macos(10.12));

@end

APPKIT_EXTERN NSNotificationName const
    NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification API_AVAILABLE(macos(10.10));

NS_ASSUME_NONNULL_END
