#import <AppKit/AppKit.h>

#include "macos/services/system_colors.h"
#include "platform/appearance.h"

NS_ASSUME_NONNULL_BEGIN

/// Calls back when the appearance may have changed.
@interface VantrixAppearanceObserver : NSObject
- (instancetype)initWithChanged:(std::function<void()>)changed;
- (void)stop;
@end

NS_ASSUME_NONNULL_END

namespace {

NSString* const effectiveAppearance = @"effectiveAppearance";

} // namespace

@implementation VantrixAppearanceObserver {
    std::function<void()> _changed;
}

- (instancetype)initWithChanged:(std::function<void()>)changed {
    self = [super init];
    if (!self)
        return self;
    _changed = std::move(changed);
    [NSApp addObserver:self forKeyPath:effectiveAppearance options:NSKeyValueObservingOptionNew context:nullptr];
    [NSNotificationCenter.defaultCenter addObserver:self
                                           selector:@selector(settingsChanged:)
                                               name:NSSystemColorsDidChangeNotification
                                             object:nil];
    [NSWorkspace.sharedWorkspace.notificationCenter
        addObserver:self
           selector:@selector(settingsChanged:)
               name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
             object:nil];
    return self;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    _changed();
}

- (void)settingsChanged:(NSNotification*)notification {
    _changed();
}

- (void)stop {
    [NSApp removeObserver:self forKeyPath:effectiveAppearance context:nullptr];
    [NSNotificationCenter.defaultCenter removeObserver:self];
    [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:self];
}

@end

namespace vantrix {
namespace {

bool isDark(NSAppearance* appearance) {
    NSAppearanceName name =
        [appearance bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    return [name isEqualToString:NSAppearanceNameDarkAqua];
}

Appearance currentAppearance() {
    NSAppearance* appearance = NSApp.effectiveAppearance;
    __block Appearance current;
    [appearance performAsCurrentDrawingAppearance:^{
      current.accent = resolved(NSColor.controlAccentColor);
      current.colors = SystemColors{.orange = resolved(NSColor.systemOrangeColor),
                                    .red = resolved(NSColor.systemRedColor),
                                    .green = resolved(NSColor.systemGreenColor),
                                    .purple = resolved(NSColor.systemPurpleColor)};
    }];
    current.dark = isDark(appearance);
    current.reducesMotion = NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
    return current;
}

/// The application's appearance, and the accent colour and display options from System Settings.
class MacAppearance final : public AppearanceSource {
  public:
    MacAppearance()
        : appearance_(currentAppearance()),
          observer_([[VantrixAppearanceObserver alloc] initWithChanged:[this] { announce(); }]) {}
    ~MacAppearance() override { [observer_ stop]; }

    Appearance appearance() const override { return appearance_; }

  private:
    void announce() {
        @autoreleasepool {
            const Appearance now = currentAppearance();
            if (now == appearance_)
                return;
            appearance_ = now;
        }
        Q_EMIT changed();
    }

    Appearance appearance_;
    VantrixAppearanceObserver* observer_;
};

} // namespace

std::unique_ptr<AppearanceSource> makeAppearanceSource() {
    return std::make_unique<MacAppearance>();
}

} // namespace vantrix
