#pragma once

#include <cstddef>

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>

typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGContext* CGContextRef;
typedef struct CGImage* CGImageRef;

typedef enum CGImageAlphaInfo : std::uint32_t { kCGImageAlphaPremultipliedFirst = 2 } CGImageAlphaInfo;

// An option set: a plain number in C++.
typedef std::uint32_t CGBitmapInfo;
enum : CGBitmapInfo { kCGBitmapByteOrder32Little = 2 << 12 };

extern "C" {

extern const CFStringRef _Nonnull kCGColorSpaceSRGB;
CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef _Nullable name);

CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, std::size_t width, std::size_t height,
                                             std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                             CGColorSpaceRef _Nullable space, std::uint32_t bitmapInfo);
void CGContextDrawImage(CGContextRef _Nullable c, CGRect rect, CGImageRef _Nullable image);

/// Null without a window server session, as over a remote shell. The caller releases it.
CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);

} // extern "C"
