#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSGraphicsContext : NSObject

@property(class, nullable, strong) NSGraphicsContext* currentContext;
@property(readonly) CGContextRef CGContext NS_RETURNS_INNER_POINTER API_AVAILABLE(macos(10.10));

+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)graphicsPort
                                           flipped:(BOOL)initialFlippedState API_AVAILABLE(macos(10.10));
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;

@end

NS_ASSUME_NONNULL_END
