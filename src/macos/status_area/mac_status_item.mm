#import <AppKit/AppKit.h>

#include "macos/kernel/objc_text.h"
#include "macos/status_area/native_menu.h"
#include "macos/status_area/status_image.h"
#include "menubar/menu_bar_renderer.h"
#include "platform/status_item.h"

NS_ASSUME_NONNULL_BEGIN

/// A click, and how far from the left of the button; without a place where an assistive program pressed it.
using ClickedAt = std::function<void(vantrix::StatusClick, std::optional<CGFloat>)>;

/// Receives the clicks on the status item's button.
@interface VantrixClickTarget : NSObject
- (instancetype)initWithClicked:(ClickedAt)clicked;
- (void)statusItemClicked:(NSView*)button;
@end

NS_ASSUME_NONNULL_END

@implementation VantrixClickTarget {
    ClickedAt _clicked;
}

- (instancetype)initWithClicked:(ClickedAt)clicked {
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
    const bool isPlaced = (left || right) && event.window == button.window;
    _clicked({.button = right ? Button::right : Button::left, .control = control},
             isPlaced ? std::optional([button convertPoint:event.locationInWindow fromView:nil].x) : std::nullopt);
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

/// What is shown at `x` of the button, which has the row in its middle.
std::optional<MenuBarModule> moduleAt(CGFloat x, const StatusContent& content, NSView* button) {
    if (content.items.empty())
        return std::nullopt;
    const CGFloat margin = (button.bounds.size.width - MenuBarRenderer::size(content.items, content.style).width()) / 2;
    return content.items[MenuBarRenderer::itemAt(content.items, content.style, x - margin)].module;
}

/// The program's item in the menu bar (NSStatusItem).
class MacStatusItem final : public StatusItem {
  public:
    explicit MacStatusItem(Handlers handlers) : details_(std::move(handlers.details)) {
        // No Dock icon and no menu bar of its own.
        [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
        item_ = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
        const auto clicked = [this, tell = std::move(handlers.clicked)](StatusClick click, std::optional<CGFloat> x) {
            if (x && shown_)
                click.module = moduleAt(*x, *shown_, item_.button);
            tell(click);
        };
        target_ = [[VantrixClickTarget alloc] initWithClicked:clicked];
        NSStatusBarButton* button = item_.button;
        button.target = target_;
        button.action = @selector(statusItemClicked:);
        [button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
        button.imagePosition = NSImageOnly;
        // A button sends no action for the middle one.
        __weak NSView* weakButton = button;
        middleClicks_ =
            [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskOtherMouseUp
                                                  handler:^NSEvent* _Nullable(NSEvent* event) {
                                                    if (event.buttonNumber == 2 && weakButton &&
                                                        event.window == weakButton.window)
                                                        clicked({.button = StatusClick::Button::middle}, std::nullopt);
                                                    return event;
                                                  }];
    }

    ~MacStatusItem() override {
        [NSEvent removeMonitor:middleClicks_];
        [NSStatusBar.systemStatusBar removeStatusItem:item_];
    }

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
    id middleClicks_;
    NSMenu* menu_ = nil; ///< the last one shown: its chosen action may run after it has closed
    std::optional<StatusContent> shown_;
};

} // namespace

std::unique_ptr<StatusItem> makeStatusItem(StatusItem::Handlers handlers, UserDefaults& /*defaults*/,
                                           const AppearanceSource& /*appearance*/) {
    return std::make_unique<MacStatusItem>(std::move(handlers));
}

} // namespace vantrix
