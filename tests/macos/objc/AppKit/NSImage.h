#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSImageSymbolConfiguration.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSImageCacheMode) {
    NSImageCacheDefault,
    NSImageCacheAlways,
    NSImageCacheBySize,
    NSImageCacheNever,
};

@interface NSImage : NSObject <NSCopying>

@property NSSize size;
@property NSImageCacheMode cacheMode;
@property(nullable, copy) NSString* accessibilityDescription API_AVAILABLE(macos(10.6));

// A property whose name is a keyword here; its methods are the same.
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;

+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(11.0));
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
               drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler API_AVAILABLE(macos(10.8));
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration API_AVAILABLE(macos(11.0));
- (void)drawInRect:(NSRect)rect API_AVAILABLE(macos(10.9));

@end

NS_ASSUME_NONNULL_END
