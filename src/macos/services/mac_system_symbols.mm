#include "platform/system_symbols.h"

#import <AppKit/AppKit.h>

#include "macos/kernel/cf_ref.h"
#include "macos/kernel/objc_text.h"
#include "menubar/symbol.h"

namespace vantrix {
namespace {

/// Draws into the pixels of `image`; null on failure.
CFRef<CGContextRef> contextOf(QImage& image) {
    const CFRef<CGColorSpaceRef> space(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    return CFRef<CGContextRef>(CGBitmapContextCreate(
        image.bits(), static_cast<std::size_t>(image.width()), static_cast<std::size_t>(image.height()), 8,
        static_cast<std::size_t>(image.bytesPerLine()), space.get(),
        static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) | kCGBitmapByteOrder32Little));
}

/// At the weight of the texts beside it; nil where the system has no such symbol.
NSImage* symbolOf(std::string_view name, double textSize) {
    NSImageSymbolConfiguration* looks = [NSImageSymbolConfiguration configurationWithPointSize:textSize
                                                                                        weight:NSFontWeightMedium];
    return [[NSImage imageWithSystemSymbolName:nativeText(name)
                      accessibilityDescription:nil] imageWithSymbolConfiguration:looks];
}

} // namespace

QImage systemSymbol(std::string_view name, int side) {
    @autoreleasepool {
        NSImage* symbol = symbolOf(name, symbolTextSize(side));
        if (!symbol)
            return {};
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        const CFRef<CGContextRef> context = contextOf(image);
        if (!context)
            return {};
        const QRectF place = symbolPlace(QSizeF::fromCGSize(symbol.size), side);
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context.get() flipped:NO];
        [symbol drawInRect:place.toCGRect()];
        [NSGraphicsContext restoreGraphicsState];
        return image;
    }
}

} // namespace vantrix
