#include "macos/status_area/native_menu.h"

#include <QGuiApplication>
#include <QWidget>

#import <AppKit/AppKit.h>

#include "platform/desktop_services.h"

NS_ASSUME_NONNULL_BEGIN

/// What one entry of a menu does.
@interface VantrixMenuAction : NSObject
- (instancetype)initWithAction:(std::function<void()>)action;
- (void)runAction:(id)sender;
@end

NS_ASSUME_NONNULL_END

@implementation VantrixMenuAction {
    std::function<void()> _action;
}

- (instancetype)initWithAction:(std::function<void()>)action {
    self = [super init];
    if (self)
        _action = std::move(action);
    return self;
}

- (void)runAction:(id)sender {
    _action();
}

@end

namespace vantrix {
namespace {

/// The key without its modifier: the system adds Command, which Qt calls Control.
NSString* keyEquivalent(const QKeySequence& shortcut) {
    if (shortcut.isEmpty())
        return @"";
    return QString(QChar(static_cast<char16_t>(shortcut[0].key()))).toLower().toNSString();
}

NSMenuItem* makeItem(const StatusMenuEntry& entry) {
    if (entry.title.isEmpty())
        return [NSMenuItem separatorItem];
    NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:entry.title.toNSString()
                                                  action:@selector(runAction:)
                                           keyEquivalent:keyEquivalent(entry.shortcut)];
    VantrixMenuAction* action = [[VantrixMenuAction alloc] initWithAction:entry.action];
    item.target = action;
    item.representedObject = action; // an item does not keep its target alive
    return item;
}

} // namespace

NSMenu* makeNativeMenu(const std::vector<StatusMenuEntry>& entries) {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    for (const StatusMenuEntry& entry : entries)
        [menu addItem:makeItem(entry)];
    return menu;
}

/// The toolkit's own pop-up is a window outside the popover, which may close for it before a click has arrived there.
bool popUpSystemMenu(const std::vector<StatusMenuEntry>& entries, const QWidget& widget) {
    if (QGuiApplication::platformName() != QStringLiteral("cocoa"))
        return false; // drawn on no screen
    @autoreleasepool {
        const QWidget& window = *widget.window();
        NSView* view = (__bridge NSView*)reinterpret_cast<void*>(window.winId());
        // The toolkit's views count from the top, as it does.
        const QPointF place = widget.mapTo(&window, QPoint(0, widget.height()));
        static NSMenu* menu = nil; // until the next one: its chosen action may run after it has closed
        menu = makeNativeMenu(entries);
        [menu popUpMenuPositioningItem:nil atLocation:place.toCGPoint() inView:view];
    }
    return true;
}

} // namespace vantrix
