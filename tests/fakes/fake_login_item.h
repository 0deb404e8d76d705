#pragma once

#include "platform/login_item.h"

namespace vantrix::fakes {

struct FakeLoginItem : LoginItem {
    bool enabled = false;
    bool refuses = false;
    bool isEnabled() const override { return enabled; }
    void setEnabled(bool wanted) override { enabled = refuses ? enabled : wanted; }
};

} // namespace vantrix::fakes
