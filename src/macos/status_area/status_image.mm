#include "macos/status_area/status_image.h"

#include <cmath>
#include <memory>

#import <AppKit/AppKit.h>

#include "macos/kernel/cf_ref.h"
#include "macos/kernel/objc_text.h"
#include "macos/services/system_colors.h"
#include "menubar/menu_bar_renderer.h"
#include "menubar/symbol.h"

namespace vantrix {
namespace {

constexpr double gaugeSide = 18.0;
constexpr const char* gaugeName = "gauge.with.dots.needle.33percent";

MenuBarPalette currentPalette() {
    return {.label = resolved(NSColor.labelColor),
            .orange = resolved(NSColor.systemOrangeColor),
            .red = resolved(NSColor.systemRedColor)};
}

/// Pixels per point.
double scaleOf(CGContextRef context) {
    const CGAffineTransform toDevice = CGContextGetUserSpaceToDeviceSpaceTransform(context);
    return std::hypot(toDevice.a, toDevice.b);
}

void draw(CGContextRef context, const QImage& picture, NSRect place) {
    const CFRef<CGImageRef> image(picture.toCGImage());
    CGContextDrawImage(context, place, image.get());
}

void drawRow(const StatusContent& content, NSRect place) {
    CGContextRef context = NSGraphicsContext.currentContext.CGContext;
    QImage picture;
    MenuBarRenderer::render(picture, content.items, content.style, content.colorize, currentPalette(),
                            scaleOf(context));
    draw(context, picture, place);
}

NSImage* rowImage(const StatusContent& content, NSView* button) {
    const QSizeF size = MenuBarRenderer::size(content.items, content.style);
    const auto row = std::make_shared<const StatusContent>(content); // blocks copy what they hold
    __weak NSView* shownIn = button;
    NSImage* image = [NSImage imageWithSize:NSMakeSize(size.width(), size.height())
                                    flipped:NO
                             drawingHandler:^BOOL(NSRect place) {
                               if (!NSThread.isMainThread)
                                   return NO; // the renderer's fonts are shared
                               NSView* view = shownIn;
                               NSAppearance* appearance =
                                   view ? view.effectiveAppearance : NSAppearance.currentDrawingAppearance;
                               [appearance performAsCurrentDrawingAppearance:^{
                                 drawRow(*row, place);
                               }];
                               return YES;
                             }];
    [image setTemplate:NO];
    image.cacheMode = NSImageCacheNever; // a cached picture would keep the colours of an old appearance
    return image;
}

/// Where the system has no such symbol.
NSImage* ownGauge() {
    return [NSImage imageWithSize:NSMakeSize(gaugeSide, gaugeSide)
                          flipped:NO
                   drawingHandler:^BOOL(NSRect place) {
                     CGContextRef context = NSGraphicsContext.currentContext.CGContext;
                     const double side = std::round(gaugeSide * scaleOf(context));
                     draw(context, symbolImage(gaugeName, Qt::black, static_cast<int>(side)), place);
                     return YES;
                   }];
}

NSImage* gauge() {
    NSImage* image = [NSImage imageWithSystemSymbolName:nativeText(gaugeName) accessibilityDescription:nil];
    if (!image)
        image = ownGauge();
    image.accessibilityDescription = @"Vantrix";
    [image setTemplate:YES];
    return image;
}

} // namespace

NSImage* statusImage(const StatusContent& content, NSView* button) {
    return content.items.empty() ? gauge() : rowImage(content, button);
}

} // namespace vantrix
