#include "platform/widget_center.h"

#include "macos/kernel/objc_text.h"
#include "macos/mac_application_group.h"

#import <Foundation/Foundation.h>

/// In mac_widget_center.swift.
extern "C" void vantrixReloadAllTimelines();

namespace vantrix {
namespace {

/// The shared settings of the application group, and WidgetKit.
class MacWidgetCenter final : public WidgetCenter {
  public:
    explicit MacWidgetCenter(std::string_view group)
        : suite_([[NSUserDefaults alloc] initWithSuiteName:nativeText(group)]) {}

    void store(std::string_view key, std::string_view json) override {
        @autoreleasepool {
            [suite_ setObject:[NSData dataWithBytes:json.data() length:json.size()] forKey:nativeText(key)];
        }
    }

    void reloadAllTimelines() override {
        @autoreleasepool {
            vantrixReloadAllTimelines();
        }
    }

  private:
    NSUserDefaults* suite_; ///< nil if it cannot be opened
};

} // namespace

std::unique_ptr<WidgetCenter> makeWidgetCenter() {
    const auto group = applicationGroup();
    return group ? std::make_unique<MacWidgetCenter>(*group) : nullptr;
}

} // namespace vantrix
