#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>

typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGDataProvider* CGDataProviderRef;
typedef struct CGImage* CGImageRef;

typedef enum CGImageAlphaInfo : std::uint32_t {
    kCGImageAlphaNone,
    kCGImageAlphaPremultipliedLast,
    kCGImageAlphaPremultipliedFirst,
} CGImageAlphaInfo;

typedef enum CGImageByteOrderInfo : std::uint32_t {
    kCGImageByteOrder32Little = (2 << 12),
    kCGImageByteOrder32Big = (4 << 12),
} CGImageByteOrderInfo;

// An option set: a plain number in C++.
typedef std::uint32_t CGBitmapInfo;
enum : CGBitmapInfo { kCGBitmapByteOrder32Little = kCGImageByteOrder32Little };

typedef enum CGColorRenderingIntent : std::int32_t { kCGRenderingIntentDefault } CGColorRenderingIntent;

typedef void (*CGDataProviderReleaseDataCallback)(void* _Nullable info, const void* _Nonnull data, std::size_t size);

extern "C" {
extern const CFStringRef _Nonnull kCGColorSpaceSRGB;

CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef _Nullable name);
CGDataProviderRef _Nullable CGDataProviderCreateWithData(void* _Nullable info, const void* _Nullable data,
                                                         std::size_t size,
                                                         CGDataProviderReleaseDataCallback _Nullable releaseData);
CGImageRef _Nullable CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                                   std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef _Nullable space,
                                   CGBitmapInfo bitmapInfo, CGDataProviderRef _Nullable provider,
                                   const CGFloat* _Nullable decode, bool shouldInterpolate,
                                   CGColorRenderingIntent intent);
}
