#import <AppKit/AppKit.h>

#include "macos/kernel/objc_text.h"
#include "macos/status_area/native_menu.h"
#include "macos/status_area/status_image.h"
#include "menubar/menu_bar_renderer.h"
#include "platform/status_item.h"

NS_ASSUME_NONNULL_BEGIN

/// Receives the clicks on the status item's button.
@interface VantrixClickTarget : NSObject
- (instancetype)initWithClicked:(std::function<void(const vantrix::StatusClick&)>)clicked;
- (void)statusItemClicked:(NSView*)button;
@end

NS_ASSUME_NONNULL_END

@implementation VantrixClickTarget {
    std::function<void(const vantrix::StatusClick&)> _clicked;
}

- (instancetype)initWithClicked:(std::function<void(const vantrix::StatusClick&)>)clicked {
    self = [super init];
    if (self)
        _clicked = std::move(clicked);
    return self;
}

- (void)statusItemClicked:(NSView*)button {
    using Button = vantrix::StatusClick::Button;
    // The latest event, whatever it is: when an assistive program presses the button, it is no click, and counts as a
    // plain left one. Its window is not always the button's, as the system may show the item in one of its own.
    NSEvent* event = NSApp.currentEvent;
    const bool right = event && event.type == NSEventTypeRightMouseUp;
    const bool left = event && event.type == NSEventTypeLeftMouseUp;
    const bool control = (left || right) && (event.modifierFlags & NSEventModifierFlagControl) != 0;
    _clicked({.button = right ? Button::right : Button::left, .control = control});
}

@end

namespace vantrix {
namespace {

bool looksTheSame(const StatusContent& a, const StatusContent& b) {
    return a.style == b.style && a.colorize == b.colorize && a.accessibilityLabel == b.accessibilityLabel &&
           samePicture(a.items, b.items, a.style);
}

/// From the system's coordinates, which go up from the bottom of the first screen, to the toolkit's, which go down from
/// its top.
QRect fromScreen(NSRect rect) {
    const CGFloat height = NSScreen.screens.firstObject.frame.size.height;
    return QRectF(rect.origin.x, height - rect.origin.y - rect.size.height, rect.size.width, rect.size.height)
        .toAlignedRect();
}

/// The program's item in the menu bar (NSStatusItem).
class MacStatusItem final : public StatusItem {
  public:
    explicit MacStatusItem(Handlers handlers) : details_(std::move(handlers.details)) {
        // No Dock icon and no menu bar of its own.
        [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
        item_ = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
        target_ = [[VantrixClickTarget alloc] initWithClicked:std::move(handlers.clicked)];
        NSStatusBarButton* button = item_.button;
        button.target = target_;
        button.action = @selector(statusItemClicked:);
        [button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
        button.imagePosition = NSImageOnly;
    }

    ~MacStatusItem() override { [NSStatusBar.systemStatusBar removeStatusItem:item_]; }

    void show(const StatusContent& content) override {
        @autoreleasepool {
            NSStatusBarButton* button = item_.button;
            if (!button || (shown_ && looksTheSame(*shown_, content)))
                return;
            shown_ = content;
            button.image = statusImage(content, button);
            button.accessibilityLabel = nativeText(content.accessibilityLabel);
            button.toolTip = nativeText(details_({}).toStdString());
        }
    }

    QRect anchor() const override {
        @autoreleasepool {
            NSStatusBarButton* button = item_.button;
            NSRect inWindow = [button convertRect:button.bounds toView:nil];
            return button.window ? fromScreen([button.window convertRectToScreen:inWindow]) : QRect(0, 0, 1, 1);
        }
    }

    bool popUpMenu(const std::vector<StatusMenuEntry>& entries) override {
        @autoreleasepool {
            menu_ = makeNativeMenu(entries);
            // Only while it is open: with a menu attached, clicks no longer reach the target.
            item_.menu = menu_;
            [item_.button performClick:nil];
            item_.menu = nil;
        }
        return true;
    }

    WId nativeView() const override { return reinterpret_cast<WId>((__bridge void*)item_.button); }

  private:
    std::function<QString(std::optional<MenuBarModule>)> details_;
    NSStatusItem* item_;
    VantrixClickTarget* target_;
    NSMenu* menu_ = nil; ///< the last one shown: its chosen action may run after it has closed
    std::optional<StatusContent> shown_;
};

} // namespace

std::unique_ptr<StatusItem> makeStatusItem(StatusItem::Handlers handlers, UserDefaults& /*defaults*/,
                                           const AppearanceSource& /*appearance*/) {
    return std::make_unique<MacStatusItem>(std::move(handlers));
}

} // namespace vantrix
