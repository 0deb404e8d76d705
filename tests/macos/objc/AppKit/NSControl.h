#pragma once

#import <AppKit/NSEvent.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSControl : NSView

@property(nullable, weak) id target;
@property(nullable) SEL action;

- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;

@end

NS_ASSUME_NONNULL_END
