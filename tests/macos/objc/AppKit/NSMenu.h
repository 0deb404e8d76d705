#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSMenuItem.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSMenu : NSObject <NSCopying>

- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
- (void)addItem:(NSMenuItem*)newItem;

@end

NS_ASSUME_NONNULL_END
