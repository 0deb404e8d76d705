#include <gtest/gtest.h>

#include "macos/simulated/instruments.h"
#include "macos/simulated/laptop.h"

namespace vantrix::simulated {
namespace {

class ConnectionTest : public testing::Test {
  protected:
    ConnectionTest() { furnish(machine_); }

    /// The readings of the last of so many passes.
    ReadingTexts afterPasses(int count) {
        for (; count > 1; --count)
            instruments_.pass();
        return instruments_.pass();
    }

    Machine machine_;
    Instruments instruments_;
};

} // namespace

TEST_F(ConnectionTest, FollowsTheStore) {
    auto& store = machine_.store;
    store.erase("State:/Network/Global/IPv4");
    auto readings = afterPasses(1);
    EXPECT_EQ(readings.at("interface"), "en5"); // of IPv6
    EXPECT_EQ(readings.at("address"), "-");
    EXPECT_EQ(readings.at("kind"), "1");
    store["State:/Network/Global/IPv4"] = {{"PrimaryInterface", "en0"}};
    EXPECT_EQ(afterPasses(1).at("display name"), "Wi-Fi");
    store["State:/Network/Global/IPv4"] = {{"PrimaryInterface", 7}};
    store.erase("State:/Network/Global/IPv6");
    EXPECT_EQ(afterPasses(1).at("kind"), "3");
    EXPECT_EQ(machine_.calls["SCDynamicStoreCreate"], 1);
}

TEST_F(ConnectionTest, ListsTheInterfacesEveryThirtyPasses) {
    afterPasses(1);
    machine_.interfaces[1].displayName = "Radio";
    EXPECT_EQ(afterPasses(29).at("display name"), "Wi-Fi");
    EXPECT_EQ(afterPasses(1).at("display name"), "Radio");
    afterPasses(30);
    EXPECT_EQ(machine_.calls["SCNetworkInterfaceCopyAll"], 3);
}

TEST_F(ConnectionTest, LooksForANewPortEveryFivePasses) {
    const auto ports = std::exchange(machine_.interfaces, {});
    afterPasses(1);
    machine_.interfaces = ports;
    EXPECT_EQ(afterPasses(4).at("kind"), "2");
    EXPECT_EQ(afterPasses(1).at("kind"), "0");
    EXPECT_EQ(machine_.calls["SCNetworkInterfaceCopyAll"], 2);
}

TEST_F(ConnectionTest, TellsWhyThereIsNoNetworkName) {
    auto& details = machine_.wifi["en0"];
    details.ssid.reset();
    EXPECT_EQ(afterPasses(1).at("wifi"), "- -52 -92 866 1 location status 3 (granted) · en0");
    details.interfaceName.reset();
    EXPECT_EQ(afterPasses(1).at("wifi"), "- -52 -92 866 1 location status 3 (granted) · ?");
    machine_.wifi.clear();
    EXPECT_EQ(afterPasses(1).at("wifi"), "- - - - 0 no CoreWLAN interface for en0");
}

TEST_F(ConnectionTest, RenewsAWiFiClientOnceThereIsOne) {
    instruments_.renewWiFiClient();
    afterPasses(2);
    EXPECT_EQ(machine_.calls["renewWiFi"], 0);
    EXPECT_EQ(machine_.calls["makeWiFiClient"], 1);
    instruments_.renewWiFiClient();
    EXPECT_EQ(machine_.calls["renewWiFi"], 1);
}

} // namespace vantrix::simulated
