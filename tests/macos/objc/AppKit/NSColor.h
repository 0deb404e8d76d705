#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSColorSpace.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSColor : NSObject

@property(class, strong, readonly) NSColor* labelColor API_AVAILABLE(macos(10.10));
@property(class, strong, readonly) NSColor* controlAccentColor API_AVAILABLE(macos(10.14));
@property(class, strong, readonly) NSColor* systemOrangeColor API_AVAILABLE(macos(10.10));
@property(class, strong, readonly) NSColor* systemRedColor API_AVAILABLE(macos(10.10));
@property(class, strong, readonly) NSColor* systemGreenColor API_AVAILABLE(macos(10.10));
@property(class, strong, readonly) NSColor* systemPurpleColor API_AVAILABLE(macos(10.10));

- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
- (void)getRed:(nullable CGFloat*)red
         green:(nullable CGFloat*)green
          blue:(nullable CGFloat*)blue
         alpha:(nullable CGFloat*)alpha;

@end

APPKIT_EXTERN NSNotificationName const NSSystemColorsDidChangeNotification;

NS_ASSUME_NONNULL_END
