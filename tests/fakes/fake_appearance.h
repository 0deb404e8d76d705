#pragma once

#include "platform/appearance.h"

namespace vantrix::fakes {

struct FakeAppearance : AppearanceSource {
    explicit FakeAppearance(const Appearance& appearance = {}) : current(appearance) {}

    Appearance appearance() const override { return current; }
    void set(const Appearance& appearance) {
        current = appearance;
        Q_EMIT changed();
    }

    Appearance current;
};

} // namespace vantrix::fakes
