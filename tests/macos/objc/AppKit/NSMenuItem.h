#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSMenuItem : NSObject <NSCopying>

@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(nullable, strong) id representedObject;

+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode NS_DESIGNATED_INITIALIZER;

@end

NS_ASSUME_NONNULL_END
