#include "linux/network/background_wifi.h"

#include <condition_variable>
#include <mutex>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using std::chrono::steady_clock;

/// A driver that can be made to hang; it counts up its signal. Outlives its test's reader, as a hanging thread may.
struct Driver {
    std::mutex mutex;
    std::condition_variable changed;
    bool hangs = false;
    int reads = 0;
    int finished = 0;

    void setHanging(bool value) {
        const std::lock_guard lock(mutex);
        hangs = value;
        changed.notify_all();
    }

    bool waitUntilFinished(int count) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(10), [&] { return finished >= count; });
    }

    int begunReads() {
        const std::lock_guard lock(mutex);
        return reads;
    }
};

struct FakeReader : WiFiReader {
    std::shared_ptr<Driver> driver;

    explicit FakeReader(std::shared_ptr<Driver> shared) : driver(std::move(shared)) {}

    void read(int link, WiFiReading& reading) override {
        std::unique_lock lock(driver->mutex);
        reading = WiFiReading{.signal = -++driver->reads, .ssid = "network of link " + std::to_string(link)};
        driver->changed.wait(lock, [&] { return !driver->hangs; });
        ++driver->finished;
        driver->changed.notify_all();
    }
};

struct BackgroundWiFiTest : ::testing::Test {
    std::shared_ptr<Driver> driver = std::make_shared<Driver>();
    BackgroundWiFi wifi{std::make_unique<FakeReader>(driver)};

    void TearDown() override { driver->setHanging(false); }

    /// What is read once it is about `link`.
    WiFiReading settled(int link) {
        const auto deadline = steady_clock::now() + std::chrono::seconds(10);
        WiFiReading reading = wifi.read(link);
        while (!reading.problem.empty() && steady_clock::now() < deadline) {
            std::this_thread::yield();
            reading = wifi.read(link);
        }
        return reading;
    }
};

TEST_F(BackgroundWiFiTest, KeepsLinksApartAndFollowsThem) {
    EXPECT_EQ(settled(3).ssid, "network of link 3");
    const int before = settled(3).signal;
    const auto deadline = steady_clock::now() + std::chrono::seconds(10);
    while (settled(3).signal >= before && steady_clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_LT(settled(3).signal, before);
    EXPECT_EQ(settled(4).ssid, "network of link 4");
    wifi.forget();
    EXPECT_EQ(settled(4).ssid, "network of link 4");
}

TEST_F(BackgroundWiFiTest, ADriverThatHangsHoldsNothingUp) {
    do
        wifi.forget(); // so that at most one question is left open
    while (!wifi.read(3).problem.empty());
    driver->setHanging(true);
    const auto start = steady_clock::now();
    int passes = 0;
    while (wifi.read(3).problem.empty() && passes < 1000)
        ++passes;
    EXPECT_GE(passes, BackgroundWiFi::questionsUntilStale - 1); // the one left open counts
    EXPECT_LT(passes, 1000);
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(wifi.read(3).problem, "nl80211 does not answer");
    EXPECT_EQ(wifi.read(4).problem, "nl80211 does not answer"); // waited for, but not for long
    driver->setHanging(false);
    EXPECT_EQ(settled(4).ssid, "network of link 4");
}

TEST(BackgroundWiFi, EndsWhileADriverHangs) {
    const auto driver = std::make_shared<Driver>();
    driver->hangs = true;
    {
        BackgroundWiFi wifi(std::make_unique<FakeReader>(driver));
        while (driver->begunReads() == 0)
            wifi.read(3);
    }
    driver->setHanging(false);
    EXPECT_TRUE(driver->waitUntilFinished(1));
}

} // namespace
} // namespace vantrix
