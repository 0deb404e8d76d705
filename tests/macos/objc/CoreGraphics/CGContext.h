#pragma once

#include <CoreGraphics/CGImage.h>

typedef struct CGContext* CGContextRef;

extern "C" {
CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, std::size_t width, std::size_t height,
                                             std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                             CGColorSpaceRef _Nullable space, std::uint32_t bitmapInfo);
CGAffineTransform CGContextGetUserSpaceToDeviceSpaceTransform(CGContextRef _Nullable c);
void CGContextDrawImage(CGContextRef _Nullable c, CGRect rect, CGImageRef _Nullable image);
}
