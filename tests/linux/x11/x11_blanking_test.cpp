#include "linux/services/x11_blanking.h"

#include <gtest/gtest.h>

#include "posix/spin_until.h"

namespace vantrix {
namespace {

TEST(X11Blanking, IsToldByTheServer) {
    const auto force = [](std::uint8_t mode) {
        xcb_force_screen_saver(xcbConnection(), mode);
        xcb_flush(xcbConnection());
    };
    X11Blanking first;
    ASSERT_FALSE(first.isBlank());
    force(XCB_SCREEN_SAVER_ACTIVE);
    EXPECT_TRUE(spinUntil([&] { return first.isBlank(); }));
    EXPECT_TRUE(X11Blanking().isBlank()) << "one that comes later";
    force(XCB_SCREEN_SAVER_RESET);
    EXPECT_TRUE(spinUntil([&] { return !first.isBlank(); }));
    EXPECT_FALSE(X11Blanking(nullptr).isBlank());
}

} // namespace
} // namespace vantrix
