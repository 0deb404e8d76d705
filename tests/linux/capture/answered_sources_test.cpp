#include "linux/capture/answered_sources.h"

#include <gmock/gmock.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using Family = DefaultRoutes::Family;

struct LiveVolume : DiskSampler::VolumeSource {
    std::optional<DiskSampler::Volume> read() override { return DiskSampler::Volume{512'000, {}}; }
};

struct LiveRoutes : DefaultRoutes {
    bool refresh() override { return true; }
    std::uint64_t generation() const override { return 7; }
    const DefaultRoute* primary(Family family) const override { return family == Family::ipv4 ? &route : nullptr; }
    DefaultRoute route{3, "wlxa4775812abcd", "192.168.178.23"};
};

struct LiveWiFi : WiFiReader {
    void read(int, WiFiReading& reading) override { reading = {-52, -95, 866.7, "Casa Ottilie", ""}; }
};

struct LiveNvidia : NvidiaLibrary {
    bool isInstalled() const override { return true; }
    bool start() override { return true; }
    void stop() override {}
    std::optional<Device> find(const std::string& address) override {
        return address == "0000:01:00.0" ? std::optional<Device>(this) : std::nullopt;
    }
    int utilization(Device device, unsigned& percent) override {
        percent = 37;
        return device == this ? success : isLost;
    }
    std::optional<double> temperature(Device) override { return 61.5; }
};

/// What is learnt otherwise than from files, in a capture and in its replay.
void expectAnswers(const std::shared_ptr<Answers>& answers, Redaction* redaction) {
    const bool isLive = redaction != nullptr;
    const auto volume = AnsweredVolume(answers, isLive ? std::make_unique<LiveVolume>() : nullptr).read();
    ASSERT_TRUE(volume);
    EXPECT_EQ(volume->total, 512'000);
    EXPECT_EQ(volume->available, std::nullopt);

    AnsweredRoutes routes(answers, isLive ? std::make_unique<LiveRoutes>() : nullptr, redaction);
    EXPECT_TRUE(routes.refresh());
    EXPECT_EQ(routes.generation(), 7);
    EXPECT_EQ(routes.primary(Family::ipv6), nullptr);
    ASSERT_NE(routes.primary(Family::ipv4), nullptr);
    EXPECT_EQ(routes.primary(Family::ipv4)->index, 3);
    EXPECT_EQ(routes.primary(Family::ipv4)->interface, "wlx020000000001");
    EXPECT_EQ(routes.primary(Family::ipv4)->ipv4Address, "192.0.2.3");

    WiFiReading reading;
    AnsweredWiFi(answers, isLive ? std::make_unique<LiveWiFi>() : nullptr, redaction).read(3, reading);
    EXPECT_EQ(reading, (WiFiReading{-52, -95, 866.7, "network-3", ""}));

    AnsweredNvidia nvidia(answers, isLive ? std::make_unique<LiveNvidia>() : nullptr);
    EXPECT_TRUE(nvidia.isInstalled());
    EXPECT_TRUE(nvidia.start());
    EXPECT_EQ(nvidia.find("0000:02:00.0"), std::nullopt);
    const auto device = nvidia.find("0000:01:00.0");
    ASSERT_TRUE(device);
    unsigned percent = 0;
    EXPECT_EQ(nvidia.utilization(*device, percent), NvidiaLibrary::success);
    EXPECT_EQ(percent, 37);
    EXPECT_EQ(nvidia.temperature(*device), 61.5);
}

TEST(AnsweredSources, ReplayWhatTheLiveOnesToldWithoutNames) {
    const TemporaryFolder folder;
    const auto live = std::make_shared<Answers>();
    Redaction redaction({});
    expectAnswers(live, &redaction);
    ASSERT_TRUE(live->save(folder.path("answers")));
    EXPECT_THAT(folder.read("answers"), ::testing::Not(::testing::HasSubstr("Ottilie")));
    const auto replayed = std::make_shared<Answers>();
    replayed->load(folder.path("answers"));
    expectAnswers(replayed, nullptr);
}

TEST(AnsweredSources, TellNothingThatWasNotAnswered) {
    const auto none = std::make_shared<Answers>();
    EXPECT_FALSE(AnsweredVolume(none, nullptr).read());
    EXPECT_FALSE(AnsweredRoutes(none, nullptr, nullptr).refresh());
    WiFiReading reading;
    AnsweredWiFi(none, nullptr, nullptr).read(1, reading);
    EXPECT_NE(reading.problem, "");
    EXPECT_FALSE(AnsweredNvidia(none, nullptr).isInstalled());
    EXPECT_FALSE(AnsweredNvidia(none, nullptr).start());
}

} // namespace
} // namespace vantrix
