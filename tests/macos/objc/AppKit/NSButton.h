#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSControl.h>
#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSButton : NSControl

@property(nullable, strong) NSImage* image;
@property NSCellImagePosition imagePosition;

@end

NS_ASSUME_NONNULL_END
