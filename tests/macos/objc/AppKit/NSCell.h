#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSCellImagePosition) {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeft = 2,
    NSImageRight = 3,
    NSImageBelow = 4,
    NSImageAbove = 5,
    NSImageOverlaps = 6,
    NSImageLeading API_AVAILABLE(macos(10.12)) = 7,
    NSImageTrailing API_AVAILABLE(macos(10.12)) = 8,
};

NS_ASSUME_NONNULL_END
