#pragma once

#include <functional>
#include <string>

#include "platform/widget_center.h"

namespace vantrix::fakes {

/// Keeps the last value stored, whatever its key.
struct FakeWidgetCenter : WidgetCenter {
    void store(std::string_view key_, std::string_view json_) override {
        ++stores;
        key = key_;
        json = json_;
        if (onStore)
            onStore();
    }
    void reloadAllTimelines() override { ++reloads; }

    std::string key;
    std::string json;
    int stores = 0;
    int reloads = 0;
    std::function<void()> onStore;
};

} // namespace vantrix::fakes
