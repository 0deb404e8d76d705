#import <AppKit/AppKit.h>

#include <optional>
#include <utility>

#include "macos/services/popover_content.h"
#include "platform/desktop_services.h"
#include "platform/popover_window.h"
#include "platform/status_item.h"
#include "views/theme.h"

NS_ASSUME_NONNULL_BEGIN

/// Calls back when the popover is about to close and when it has closed, for whatever reason.
@interface VantrixPopoverDelegate : NSObject <NSPopoverDelegate>
- (instancetype)initWithClosing:(std::function<void()>)closing closed:(std::function<void()>)closed;
@end

NS_ASSUME_NONNULL_END

@implementation VantrixPopoverDelegate {
    std::function<void()> _closing;
    std::function<void()> _closed;
}

- (instancetype)initWithClosing:(std::function<void()>)closing closed:(std::function<void()>)closed {
    self = [super init];
    if (self) {
        _closing = std::move(closing);
        _closed = std::move(closed);
    }
    return self;
}

- (void)popoverWillClose:(NSNotification*)notification {
    _closing();
}

- (void)popoverDidClose:(NSNotification*)notification {
    _closed();
}

@end

namespace vantrix {
namespace {

/// The event number, which a press and its release share, and no other click has; absent when the current event is of
/// another type.
std::optional<NSInteger> clickNumber(NSEventType type) {
    NSEvent* event = NSApp.currentEvent;
    return event && event.type == type ? std::optional<NSInteger>(event.eventNumber) : std::nullopt;
}

/// An NSPopover around the toolkit's view. It closes when the user clicks elsewhere.
class MacPopover final : public PopoverWindow {
  public:
    MacPopover(const Theme& theme, MakeView makeView) : theme_(theme), makeView_(std::move(makeView)) {
        delegate_ = [[VantrixPopoverDelegate alloc] initWithClosing:[this] { closing(); } closed:[this] { closed(); }];
        popover_ = [[NSPopover alloc] init];
        popover_.behavior = NSPopoverBehaviorTransient;
        popover_.delegate = delegate_;
    }

    ~MacPopover() override {
        popover_.delegate = nil;
        [popover_ close];
        popover_.contentViewController = nil; // before the toolkit's view is destroyed
    }

    bool isShown() const override { return popover_.shown; }

    void show(const StatusItem& item) override {
        @autoreleasepool {
            NSView* button = (__bridge NSView*)reinterpret_cast<void*>(item.nativeView());
            if (!button.window)
                return; // an error without one
            if (!content_)
                makeContent();
            NSScreen* screen = button.window.screen ? button.window.screen : NSScreen.mainScreen;
            resize(popoverContentSize(screen ? screen.visibleFrame.size.height : 0.0));
            popover_.animates = !theme_.reducesMotion();
            popover_.appearance = NSApp.effectiveAppearance; // not the menu bar's, which depends on the wallpaper
            content_->show();
            activateProgram(); // a click on the item does not, and a popover of an inactive program gets no keys
            [popover_ showRelativeToRect:button.bounds ofView:button preferredEdge:NSRectEdgeMinY];
            [view().window makeKeyWindow];
            [view().window makeFirstResponder:view()];
        }
    }

    void close() override {
        @autoreleasepool {
            [popover_ close];
        }
        closingClick_.reset(); // the next click opens it again
    }

    /// The press on the item may have closed the popover already; its release must not open it again.
    void toggle(const StatusItem& item) override {
        const auto closing = std::exchange(closingClick_, std::nullopt);
        if (isShown())
            close();
        else if (!closing || closing != clickNumber(NSEventTypeLeftMouseUp))
            show(item);
    }

  private:
    void closing() { closingClick_ = clickNumber(NSEventTypeLeftMouseDown); }

    void closed() {
        if (!isShown()) // it may be open again
            content_->hide();
    }

    NSView* view() const { return (__bridge NSView*)reinterpret_cast<void*>(content_->winId()); }

    /// Also places the view anew: autoresizing only adds what the ground grows by.
    void resize(QSize size) {
        popover_.contentSize = size.toCGSize();
        [ground_ setFrameSize:size.toCGSize()];
        content_->setGeometry(QRect(QPoint(), size));
        view().frame = ground_.bounds;
    }

    /// Puts the toolkit's view into a native one, or the toolkit would make a window for it.
    void makeContent() {
        content_ = std::make_unique<PopoverContent>(theme_, makeView_(), [this] { close(); });
        ground_ = [[NSView alloc] initWithFrame:NSMakeRect(0.0, 0.0, content_->width(), content_->height())];
        NSView* inner = view();
        inner.frame = ground_.bounds;
        inner.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
        [ground_ addSubview:inner];
        NSViewController* controller = [[NSViewController alloc] initWithNibName:nil bundle:nil];
        controller.view = ground_;
        popover_.contentViewController = controller;
        QObject::connect(&theme_, &Theme::changed, content_.get(),
                         [this] { popover_.appearance = NSApp.effectiveAppearance; });
    }

    const Theme& theme_;
    MakeView makeView_;
    std::unique_ptr<PopoverContent> content_;
    VantrixPopoverDelegate* delegate_;
    NSPopover* popover_;
    NSView* ground_ = nil;                  ///< the popover's content; the toolkit's view fills it
    std::optional<NSInteger> closingClick_; ///< the one whose press closed the popover
};

} // namespace

std::unique_ptr<PopoverWindow> makePopoverWindow(const Theme& theme, PopoverWindow::MakeView makeView) {
    return std::make_unique<MacPopover>(theme, std::move(makeView));
}

} // namespace vantrix
