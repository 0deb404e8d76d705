#include <algorithm>
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

TEST(TerminationSignals, AskOnceAndLeaveTheSecondRequestToTheSystem) {
    constexpr int all[] = {SIGTERM, SIGINT, SIGHUP};
    for (const int signal : all) {
        SCOPED_TRACE(signal);
        int asked = 0;
        {
            const TerminationSignals signals([&asked] { ++asked; });
            EXPECT_FALSE(isDefault(signal));
            std::raise(signal);
            EXPECT_EQ(asked, 0); // not within the handler
            EXPECT_TRUE(spinUntil([&asked] { return asked > 0; }));
            EXPECT_EQ(asked, 1);
            EXPECT_TRUE(std::all_of(std::begin(all), std::end(all), isDefault));
        }
        TerminationSignals([] {});
        EXPECT_TRUE(isDefault(signal)); // nobody listens any more
    }
}

} // namespace
} // namespace vantrix
