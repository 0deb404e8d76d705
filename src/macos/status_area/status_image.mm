#include "macos/status_area/status_image.h"

#include <algorithm>
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

/// Pixels per point of the screen that shows the view. The context that is drawn into may be of another scale.
double scaleOf(NSView* _Nullable view) {
    NSWindow* window = view.window;
    const double scale = window ? window.backingScaleFactor : NSScreen.mainScreen.backingScaleFactor;
    return std::max(scale, 1.0); // without a screen there is none
}

void draw(const QImage& picture, NSRect place) {
    const CFRef<CGImageRef> image(picture.toCGImage());
    CGContextDrawImage(NSGraphicsContext.currentContext.CGContext, place, image.get());
}

void drawRow(const StatusContent& content, NSRect place, double scale) {
    QImage picture;
    MenuBarRenderer::render(picture, content.items, content.style, content.colorize, currentPalette(), scale);
    draw(picture, place);
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
                                 drawRow(*row, place, scaleOf(view));
                               }];
                               return YES;
                             }];
    [image setTemplate:NO];
    image.cacheMode = NSImageCacheNever; // a cached picture would keep the colours of an old appearance
    return image;
}

/// Where the system has no such symbol.
NSImage* ownGauge(NSView* button) {
    __weak NSView* shownIn = button;
    return [NSImage imageWithSize:NSMakeSize(gaugeSide, gaugeSide)
                          flipped:NO
                   drawingHandler:^BOOL(NSRect place) {
                     const double side = std::round(gaugeSide * scaleOf(shownIn));
                     draw(symbolImage(gaugeName, Qt::black, static_cast<int>(side)), place);
                     return YES;
                   }];
}

NSImage* gauge(NSView* button) {
    NSImage* image = [NSImage imageWithSystemSymbolName:nativeText(gaugeName) accessibilityDescription:nil];
    if (!image)
        image = ownGauge(button);
    image.accessibilityDescription = @"Vantrix";
    [image setTemplate:YES];
    return image;
}

} // namespace

NSImage* statusImage(const StatusContent& content, NSView* button) {
    return content.items.empty() ? gauge(button) : rowImage(content, button);
}

} // namespace vantrix
