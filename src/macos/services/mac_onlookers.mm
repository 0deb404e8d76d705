#import <AppKit/AppKit.h>

#include <algorithm>
#include <array>

#include "platform/onlookers.h"

NS_ASSUME_NONNULL_BEGIN

/// Calls back when the system hides the screen from the user, or shows it again.
@interface VantrixOnlookersObserver : NSObject
- (instancetype)initWithChanged:(std::function<void(bool isHidden)>)changed;
- (void)stop;
@end

NS_ASSUME_NONNULL_END

namespace {

/// A reason why nobody looks, by the notifications of its beginning and end.
struct Reason {
    NSString* begins;
    NSString* ends;
    bool isToldToAll; // else by the workspace
    bool holds = false;
};

} // namespace

@implementation VantrixOnlookersObserver {
    std::function<void(bool)> _changed;
    std::array<Reason, 3> _reasons;
}

- (instancetype)initWithChanged:(std::function<void(bool)>)changed {
    self = [super init];
    if (!self)
        return self;
    _changed = std::move(changed);
    _reasons = {{{NSWorkspaceScreensDidSleepNotification, NSWorkspaceScreensDidWakeNotification, false},
                 {NSWorkspaceSessionDidResignActiveNotification, NSWorkspaceSessionDidBecomeActiveNotification, false},
                 {@"com.apple.screenIsLocked", @"com.apple.screenIsUnlocked", true}}};
    for (const Reason& reason : _reasons) {
        NSNotificationCenter* center = reason.isToldToAll ? NSDistributedNotificationCenter.defaultCenter
                                                          : NSWorkspace.sharedWorkspace.notificationCenter;
        for (NSString* name : {reason.begins, reason.ends})
            [center addObserver:self selector:@selector(told:) name:name object:nil];
    }
    return self;
}

- (void)told:(NSNotification*)notification {
    for (Reason& reason : _reasons)
        if ([notification.name isEqualToString:reason.begins])
            reason.holds = true;
        else if ([notification.name isEqualToString:reason.ends])
            reason.holds = false;
    _changed(std::any_of(_reasons.begin(), _reasons.end(), [](const Reason& reason) { return reason.holds; }));
}

- (void)stop {
    [NSDistributedNotificationCenter.defaultCenter removeObserver:self];
    [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:self];
}

@end

namespace vantrix {
namespace {

/// Nobody looks while the displays sleep, the screen is locked, or another user's session is in front.
class MacOnlookers final : public Onlookers {
  public:
    MacOnlookers()
        : observer_([[VantrixOnlookersObserver alloc] initWithChanged:[this](bool isHidden) { take(isHidden); }]) {}
    ~MacOnlookers() override { [observer_ stop]; }

    bool somebodyLooks() const override { return somebodyLooks_; }

  private:
    void take(bool isHidden) {
        if (std::exchange(somebodyLooks_, !isHidden) == isHidden)
            Q_EMIT changed();
    }

    bool somebodyLooks_ = true;
    VantrixOnlookersObserver* observer_;
};

} // namespace

std::unique_ptr<Onlookers> makeOnlookers() {
    return std::make_unique<MacOnlookers>();
}

} // namespace vantrix
