#include "settings/thresholds.h"

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"

namespace vantrix {
namespace {

TEST(Thresholds, PushEachOtherApart) {
    const struct {
        const char* name;
        void (*set)(UserDefaults&, double);
        double value;
        double warningBefore, criticalBefore;
        double warning, critical;
    } cases[] = {
        {"room enough", setWarningThreshold, 0.8, 0.75, 0.9, 0.8, 0.9},
        {"warning meets critical", setWarningThreshold, 0.85, 0.75, 0.85, 0.85, 0.9},
        {"warning far above critical", setWarningThreshold, 0.95, 0.75, 0.9, 0.95, 1.0},
        {"critical at its top", setWarningThreshold, 1.0, 0.75, 1.0, 1.0, 1.0},
        {"critical meets warning", setCriticalThreshold, 0.75, 0.75, 0.9, 0.7, 0.75},
        {"critical at its bottom", setCriticalThreshold, 0.55, 0.75, 0.9, 0.5, 0.55},
        {"a sum that drifts", setWarningThreshold, 0.65, 0.5, 0.6, 0.65, 0.7},
    };
    for (const auto& c : cases) {
        fakes::FakeDefaults defaults;
        defaults.set(preference_key::warningThreshold, c.warningBefore);
        defaults.set(preference_key::criticalThreshold, c.criticalBefore);
        c.set(defaults, c.value);
        // Exactly: what is stored is a clean number.
        EXPECT_EQ(defaults.number(preference_key::warningThreshold), c.warning) << c.name;
        EXPECT_EQ(defaults.number(preference_key::criticalThreshold), c.critical) << c.name;
    }
}

} // namespace
} // namespace vantrix
