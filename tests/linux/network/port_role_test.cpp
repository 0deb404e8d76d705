#include "linux/network/port_role.h"

#include <gtest/gtest.h>
#include <net/if_arp.h>

namespace vantrix {
namespace {

TEST(RoleOf, CountsEveryByteOnce) {
    constexpr LinkState port{.isHardware = true, .type = ARPHRD_ETHER, .index = 2, .lower = 2};
    constexpr LinkState bond{.index = 9};
    const struct {
        const char* name;
        LinkState link;
        PortRole role;
    } rows[] = {
        {"a port", port, PortRole::counted},
        {"slave of a bond", {.isHardware = true, .index = 4, .master = 9}, PortRole::counted},
        {"virtual function", {.isHardware = true, .index = 4, .master = 2, .lower = 4}, PortRole::enslaved},
        {"port of a switch in a bridge", {.isHardware = true, .index = 4, .master = 9, .lower = 2}, PortRole::stacked},
        {"stacked on software", {.isHardware = true, .index = 4, .lower = 9}, PortRole::counted},
        {"master out of sight", {.isHardware = true, .index = 4, .master = 70, .lower = 71}, PortRole::counted},
        {"InfiniBand partition",
         {.isHardware = true, .type = ARPHRD_INFINIBAND, .index = 4, .lower = 2},
         PortRole::counted},
    };
    for (const auto& row : rows) {
        const LinkState all[] = {port, bond, row.link};
        EXPECT_EQ(roleOf(row.link, all), row.role) << row.name;
    }
}

} // namespace
} // namespace vantrix
