#pragma once

#include "platform/onlookers.h"

namespace vantrix::fakes {

struct FakeOnlookers : Onlookers {
    bool somebodyLooks() const override { return look; }
    void set(bool somebody) {
        look = somebody;
        Q_EMIT changed();
    }

    bool look = true;
};

} // namespace vantrix::fakes
