#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSBundle;

typedef NSString* NSNibName NS_TYPED_EXTENSIBLE_ENUM;

@interface NSViewController : NSResponder

@property(strong) NSView* view;

- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_DESIGNATED_INITIALIZER;

@end

NS_ASSUME_NONNULL_END
