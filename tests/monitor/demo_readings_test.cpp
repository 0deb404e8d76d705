#include <algorithm>

#include <gtest/gtest.h>

#include "monitor/readings.h"

namespace vantrix {
namespace {

TEST(DemoReadings, FollowTheirFormula) {
    const Readings demo = demoReadings();
    struct Case {
        const char* name;
        const History& history;
        double first; // computed by hand from the sine formula at i = 0
    };
    const Case cases[] = {
        {"cpu", demo.cpuHistory, (0.6 * 0.3894183423086505 + 0.4 * 0.7173560908995228) * 0.2 + 0.32},
        {"upload", demo.uploadHistory, (0.6 * 0.7833269096274834 + 0.4 * 0.9738476308781951) * 140000 + 200000},
        {"power", demo.systemPowerHistory, (0.6 * 0.9974949866040544 + 0.4 * 0.1411200080598672) * 7 + 16},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.history.size(), historyLength) << c.name;
        EXPECT_NEAR(c.history.front(), c.first, 1e-9 * c.first) << c.name;
    }
    EXPECT_GE(*std::min_element(demo.downloadHistory.begin(), demo.downloadHistory.end()), 0.0);
    EXPECT_LE(*std::max_element(demo.memoryHistory.begin(), demo.memoryHistory.end()), 1.0);
}

} // namespace
} // namespace vantrix
