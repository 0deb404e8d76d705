#include <csignal>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"
#include "posix/spin_until.h"

namespace vantrix {
namespace {

bool isDefault(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_DFL;
}

class TerminationSignalsTest : public ::testing::TestWithParam<int> {};

TEST_P(TerminationSignalsTest, AsksOnceAndLeavesTheSecondRequestToTheSystem) {
    int asked = 0;
    {
        const TerminationSignals signals([&asked] { ++asked; });
        EXPECT_FALSE(isDefault(GetParam()));
        std::raise(GetParam());
        EXPECT_EQ(asked, 0); // not within the handler
        EXPECT_TRUE(spinUntil([&asked] { return asked > 0; }));
        EXPECT_EQ(asked, 1);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            EXPECT_TRUE(isDefault(signal)) << signal;
    }
    {
        const TerminationSignals signals([] {});
    }
    EXPECT_TRUE(isDefault(GetParam())); // nobody listens any more
}

INSTANTIATE_TEST_SUITE_P(Signals, TerminationSignalsTest, ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& tested) { return std::to_string(tested.param); });

} // namespace
} // namespace vantrix
