#pragma once

#include <CoreGraphics/CGGeometry.h>
#import <Foundation/NSObjCRuntime.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

typedef NS_ENUM(NSUInteger, NSRectEdge) {
    NSRectEdgeMinX = CGRectMinXEdge,
    NSRectEdgeMinY = CGRectMinYEdge,
    NSRectEdgeMaxX = CGRectMaxXEdge,
    NSRectEdgeMaxY = CGRectMaxYEdge,
};

inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return {x, y};
}
inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
    return {w, h};
}
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
    return {{x, y}, {w, h}};
}
