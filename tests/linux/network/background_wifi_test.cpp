#include "linux/network/background_wifi.h"

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using std::chrono::steady_clock;

/// A driver that can be made to hang; it counts up its signal. Outlives its test's reader, as a hanging thread may.
struct Driver {
    std::atomic<bool> hangs = false;
    std::atomic<int> begun = 0;
    std::atomic<int> finished = 0;
};

struct FakeReader : WiFiReader {
    std::shared_ptr<Driver> driver;

    explicit FakeReader(std::shared_ptr<Driver> shared) : driver(std::move(shared)) {}

    void read(int link, WiFiReading& reading) override {
        reading = WiFiReading{.signal = -++driver->begun, .ssid = "network of link " + std::to_string(link)};
        while (driver->hangs)
            std::this_thread::yield();
        ++driver->finished;
    }
};

template<typename Condition>
bool comesTrue(Condition isTrue) {
    const auto deadline = steady_clock::now() + std::chrono::seconds(10);
    while (!isTrue() && steady_clock::now() < deadline)
        std::this_thread::yield();
    return isTrue();
}

struct BackgroundWiFiTest : ::testing::Test {
    std::shared_ptr<Driver> driver = std::make_shared<Driver>();
    std::optional<BackgroundWiFi> wifi{std::make_unique<FakeReader>(driver)};

    ~BackgroundWiFiTest() override { driver->hangs = false; }

    /// The network's name, once the answer is about `link`.
    std::string settled(int link) {
        comesTrue([&] { return wifi->read(link).problem.empty(); });
        return wifi->read(link).ssid;
    }
};

TEST_F(BackgroundWiFiTest, KeepsLinksApartAndFollowsThem) {
    EXPECT_EQ(settled(3), "network of link 3");
    const int before = wifi->read(3).signal;
    EXPECT_TRUE(comesTrue([&] { return wifi->read(3).signal < before; }));
    EXPECT_EQ(settled(4), "network of link 4");
    wifi->forget();
    EXPECT_EQ(settled(4), "network of link 4");
}

TEST_F(BackgroundWiFiTest, ADriverThatHangsHoldsNothingUp) {
    do
        wifi->forget(); // so that at most one question is left open
    while (!wifi->read(3).problem.empty());
    driver->hangs = true;
    const auto start = steady_clock::now();
    int passes = 0;
    while (wifi->read(3).problem.empty() && passes < 1000)
        ++passes;
    EXPECT_GE(passes, BackgroundWiFi::questionsUntilStale - 1); // the one left open counts
    EXPECT_LT(passes, 1000);
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(wifi->read(3).problem, "nl80211 does not answer");
    EXPECT_EQ(wifi->read(4).problem, "nl80211 does not answer"); // waited for, but not for long
    driver->hangs = false;
    EXPECT_EQ(settled(4), "network of link 4");
}

TEST_F(BackgroundWiFiTest, EndsWhileADriverHangs) {
    driver->hangs = true;
    EXPECT_TRUE(comesTrue([&] { return !wifi->read(3).problem.empty() && driver->begun > 0; }));
    wifi.reset();
    EXPECT_EQ(driver->finished, 0);
    driver->hangs = false;
    EXPECT_TRUE(comesTrue([&] { return driver->finished == 1; }));
}

} // namespace
} // namespace vantrix
