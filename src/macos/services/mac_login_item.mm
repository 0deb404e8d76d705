#include "platform/login_item.h"

#import <ServiceManagement/ServiceManagement.h>

namespace vantrix {
namespace {

/// The application itself, as System Settings lists it.
class MacLoginItem final : public LoginItem {
  public:
    bool isEnabled() const override {
        @autoreleasepool {
            return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
        }
    }

    void setEnabled(bool enabled) override {
        @autoreleasepool {
            if (enabled)
                [SMAppService.mainAppService registerAndReturnError:nil];
            else
                [SMAppService.mainAppService unregisterAndReturnError:nil];
        }
    }
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem() {
    return std::make_unique<MacLoginItem>();
}

} // namespace vantrix
