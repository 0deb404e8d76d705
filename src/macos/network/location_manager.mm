#include "macos/network/location_manager.h"

#import <AppKit/AppKit.h>
#import <CoreLocation/CoreLocation.h>
#import <Foundation/Foundation.h>

namespace vantrix {
class MacLocationManager;
}

NS_ASSUME_NONNULL_BEGIN

@interface VantrixLocationDelegate : NSObject <CLLocationManagerDelegate>
@property(nonatomic, nullable) vantrix::MacLocationManager* owner; ///< null once it is gone
@end

NS_ASSUME_NONNULL_END

namespace vantrix {

static_assert(kCLAuthorizationStatusNotDetermined == LocationAccess::notDetermined);
static_assert(kCLAuthorizationStatusAuthorizedAlways == LocationAccess::authorizedAlways);

/// CoreLocation calls back on the thread that made its manager.
class MacLocationManager final : public LocationManager {
  public:
    MacLocationManager()
        : manager_([[CLLocationManager alloc] init]), delegate_([[VantrixLocationDelegate alloc] init]) {
        delegate_.owner = this;
        manager_.delegate = delegate_;
    }
    ~MacLocationManager() override {
        delegate_.owner = nullptr;
        manager_.delegate = nil;
    }

    std::int32_t authorizationStatus() const override { return manager_.authorizationStatus; }
    void requestAlwaysAuthorization() override { [manager_ requestAlwaysAuthorization]; }
    void openPrivacyPane() override {
        @autoreleasepool {
            NSString* pane = @"x-apple.systempreferences:com.apple.preference.security?Privacy_LocationServices";
            if (NSURL* url = [NSURL URLWithString:pane])
                [NSWorkspace.sharedWorkspace openURL:url];
        }
    }

  private:
    CLLocationManager* manager_;
    VantrixLocationDelegate* delegate_;
};

} // namespace vantrix

@implementation VantrixLocationDelegate

- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager {
    if (self.owner && self.owner->authorizationChanged)
        self.owner->authorizationChanged();
}

@end

namespace vantrix {

std::unique_ptr<LocationManager> makeLocationManager() {
    return std::make_unique<MacLocationManager>();
}

} // namespace vantrix
