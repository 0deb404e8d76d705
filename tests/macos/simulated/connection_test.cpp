#include <gtest/gtest.h>

#include "macos/simulated/instruments.h"
#include "macos/simulated/laptop.h"

namespace vantrix::simulated {

TEST(Connection, FollowsTheStore) {
    Machine machine;
    furnish(machine);
    Instruments instruments;
    auto& store = machine.store;
    store.erase("State:/Network/Global/IPv4");
    const auto ofIPv6 = instruments.pass();
    EXPECT_EQ(ofIPv6.at("interface"), "en5");
    EXPECT_EQ(ofIPv6.at("address"), "-");
    EXPECT_EQ(ofIPv6.at("kind"), "1");
    store["State:/Network/Global/IPv4"] = Dictionary{{"PrimaryInterface", "en0"}};
    EXPECT_EQ(instruments.pass().at("display name"), "Wi-Fi");
    store["State:/Network/Global/IPv4"] = Dictionary{{"PrimaryInterface", 7}};
    store.erase("State:/Network/Global/IPv6");
    EXPECT_EQ(instruments.pass().at("kind"), "3");
    EXPECT_EQ(machine.calls["SCDynamicStoreCreate"], 1);
}

TEST(Connection, ListsTheInterfacesEveryThirtyPassesOrSoonerForANewPort) {
    Machine machine;
    furnish(machine);
    const auto ports = std::exchange(machine.interfaces, {});
    Instruments instruments;
    std::string listedIn;
    for (int pass = 0; pass < 66; ++pass) {
        const long before = machine.calls["SCNetworkInterfaceCopyAll"];
        instruments.pass();
        if (machine.calls["SCNetworkInterfaceCopyAll"] > before)
            listedIn += std::to_string(pass) + ' ';
        machine.interfaces = ports;
    }
    EXPECT_EQ(listedIn, "0 5 35 65 ");
}

} // namespace vantrix::simulated
