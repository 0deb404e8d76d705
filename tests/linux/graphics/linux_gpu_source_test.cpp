#include "linux/graphics/linux_gpu_source.h"

#include <cmath>
#include <map>

#include <gmock/gmock.h>

#include "linux/opened_files.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct FakeNvidia : NvidiaLibrary {
    std::map<std::string, unsigned> loads;
    std::vector<std::string> calls;
    bool isThere = true;

    bool isInstalled() const override { return isThere; }
    bool start() override {
        calls.push_back("start");
        return true;
    }
    void stop() override { calls.push_back("stop"); }
    std::optional<Device> find(const std::string& address) override {
        calls.push_back("find " + address);
        const auto found = loads.find(address);
        return found == loads.end() ? std::nullopt : std::optional<Device>(&found->second);
    }
    int utilization(Device device, unsigned& percent) override {
        calls.push_back("load");
        percent = *static_cast<unsigned*>(device);
        return percent > 100 ? static_cast<int>(percent) - 1000 : success;
    }
    std::optional<double> temperature(Device device) override { return *static_cast<unsigned*>(device) / 2.0; }
};

/// A load that makes the library answer with an error.
constexpr unsigned failing(int answer) {
    return static_cast<unsigned>(answer + 1000);
}

/// Performs its jobs at once, or none of them, as if the last one hung.
struct FakeBackground : Background {
    bool hangs = false;
    int jobs = 0;

    bool run(const std::shared_ptr<Job>& job) override {
        ++jobs;
        if (!hangs)
            job->perform();
        return true;
    }
    void wait(std::chrono::milliseconds) override {}
};

struct LinuxGPUSourceTest : ::testing::Test {
    TemporaryFolder folder;
    std::unique_ptr<FakeNvidia> ownedNvidia = std::make_unique<FakeNvidia>();
    std::unique_ptr<FakeClock> ownedClock = std::make_unique<FakeClock>();
    FakeNvidia& nvidia = *ownedNvidia;
    FakeClock& clock = *ownedClock;
    std::shared_ptr<FakeBackground> background = std::make_shared<FakeBackground>();
    LinuxGPUSource source{folder.path("sys"), std::move(ownedClock), std::move(ownedNvidia), {1, 0}, background};

    const std::string card = "class/drm/card1/";
    const std::string cardDevice = card + "device/";
    const std::string nvidiaDevice = "bus/pci/drivers/nvidia/0000:01:00.0/";
    const std::string otherNvidia = "bus/pci/drivers/nvidia/0000:02:00.0/";

    void write(const std::string& file, const std::string& text) { folder.write("sys/" + file, text + '\n'); }
    void setPower(const std::string& device, const char* status) { write(device + "power/runtime_status", status); }
    void setNvidiaLoads(unsigned first, std::optional<unsigned> second = {}) {
        nvidia.loads["0000:01:00.0"] = first;
        if (second)
            nvidia.loads["0000:02:00.0"] = *second;
    }
    /// The load of the machine, a second after the last.
    std::optional<double> load(double seconds = 1.0) {
        clock.now += seconds;
        return GPUSampler(source).sample();
    }
    std::vector<std::string> takeCalls() { return std::exchange(nvidia.calls, {}); }
};

TEST_F(LinuxGPUSourceTest, FollowsALoadFileThatComesAndGoes) {
    EXPECT_EQ(load(), std::nullopt);
    write(cardDevice + "gpu_busy_percent", "42");
    EXPECT_EQ(load(), 0.42); // no power state is no sleep
    write(cardDevice + "gpu_busy_percent", "");
    EXPECT_EQ(load(), std::nullopt);
    folder.remove("sys/class/drm");
    EXPECT_EQ(load(), std::nullopt);
    write(cardDevice + "gpu_busy_percent", "7");
    load(); // the folder itself was gone
    EXPECT_EQ(load(), 0.07);
}

TEST_F(LinuxGPUSourceTest, ReadsTheFirstMeterOfEachDriver) {
    const struct {
        const char* name;
        std::vector<std::string> idleFiles; // counting milliseconds
    } rows[] = {
        {"i915", {"gt/gt0/rc6_residency_ms", "gt/gt1/rc6_residency_ms"}},
        {"old i915", {"power/rc6_residency_ms"}},
        {"xe", {"device/tile0/gt0/gtidle/idle_residency_ms", "device/tile1/gt2/gtidle/idle_residency_ms"}},
    };
    for (const auto& row : rows) {
        const auto loadAfter = [&](const char* idle, double seconds = 1.0) {
            for (const auto& file : row.idleFiles)
                write(card + file, idle);
            return load(seconds);
        };
        folder.remove("sys/class/drm");
        load();
        setPower(cardDevice, "active");
        EXPECT_EQ(loadAfter("5000"), std::nullopt) << row.name;
        write(card + row.idleFiles.back(), "6500");
        write(card + row.idleFiles.front(), "5500"); // the busier, where there are two
        EXPECT_DOUBLE_EQ(load(2.0).value_or(-1.0), 0.75) << row.name;
        EXPECT_EQ(load(0.0), std::nullopt) << row.name << ", no time";
        EXPECT_EQ(loadAfter("9000"), 0.0) << row.name << ", more idle than time";
        EXPECT_EQ(loadAfter("10"), std::nullopt) << row.name << ", counter started over";
        EXPECT_EQ(load(), 1.0) << row.name;
    }
}

TEST_F(LinuxGPUSourceTest, SleepingGPUIsLeftAsleep) {
    for (const std::string& device : {cardDevice, nvidiaDevice}) {
        setPower(device, "suspended");
        write(device + "power/control", "auto");
    }
    write(cardDevice + "gpu_busy_percent", "42");
    setNvidiaLoads(50);
    OpenedFiles ofCard(folder.path("sys/" + card));
    OpenedFiles ofNvidia(folder.path("sys/" + nvidiaDevice));
    for (int pass = 0; pass < 100; ++pass)
        EXPECT_EQ(load(), 0.0);
    for (OpenedFiles* opened : {&ofCard, &ofNvidia})
        EXPECT_THAT(opened->take(), ElementsAre("runtime_status"));
    EXPECT_THAT(nvidia.calls, IsEmpty());

    setPower(cardDevice, "active");
    EXPECT_EQ(load(), 0.42);
    EXPECT_TRUE(ofCard.take().contains("gpu_busy_percent")); // else nothing was watched at all
    setPower(cardDevice, "suspending");
    ofCard.take();
    EXPECT_EQ(load(), 0.0); // known and open by now, and still left alone
    EXPECT_THAT(ofCard.take(), ElementsAre("runtime_status"));
}

/// Else its card would come and go with its sleep.
TEST_F(LinuxGPUSourceTest, WhoTellsNoLoadAwakeTellsNoneAsleep) {
    const struct {
        const char* name;
        std::string device;
        std::function<void()> prepare;
        std::optional<double> atFirst; // before anything was asked
    } rows[] = {
        {"a driver without a meter", cardDevice, [] {}, {}},
        {"a meter without a number", cardDevice, [&] { write(cardDevice + "gpu_busy_percent", ""); }, 0.0},
        {"no library", nvidiaDevice, [&] { nvidia.isThere = false; }, {}},
        {"a library without an answer", otherNvidia, [&] { nvidia.isThere = true; }, 0.0},
    };
    for (const auto& row : rows) {
        folder.remove("sys");
        row.prepare();
        setPower(row.device, "suspended");
        load(); // finds the folder
        EXPECT_EQ(load(), row.atFirst) << row.name;
        for (const char* power : {"active", "active", "suspended"}) {
            setPower(row.device, power);
            EXPECT_EQ(load(), std::nullopt) << row.name << ' ' << power;
        }
    }
}

/// A GPU that is asked on every pass never reaches the end of its autosuspend delay.
TEST_F(LinuxGPUSourceTest, IdleGPUIsGivenTheTimeToFallAsleep) {
    const struct {
        const char* name;
        const char* control;
        const char* delay;
        const char* isPrimary;
        const char* screen;
        double rest; // seconds after a line of the grids of 6 and 12 s
    } rows[] = {
        {"by itself", "auto", "5000", "0", "On", 6.0},
        {"late", "auto", "60000", "0", "On", 12.0},
        {"primary without a screen", "auto", "5000", "1", "Off", 6.0},
        {"primary with a screen", "auto", "5000", "1", "On", 0.0},
        {"kept awake", "on", "5000", "0", "On", 0.0},
        {"never by itself", "auto", "-1", "0", "On", 0.0},
    };
    setPower(cardDevice, "active");
    for (const auto& row : rows) {
        clock.now += 24.0 - std::fmod(clock.now, 12.0);
        folder.writeLines("sys/" + cardDevice, {{"power/control", row.control},
                                                {"power/autosuspend_delay_ms", row.delay},
                                                {"boot_vga", row.isPrimary},
                                                {"drm/card1/card1-eDP-1/dpms", row.screen},
                                                {"gpu_busy_percent", "0"}});
        EXPECT_EQ(load(0.0), 0.0) << row.name;
        write(cardDevice + "gpu_busy_percent", "80");
        double rested = 0.0;
        while (load(rested > 0.0 ? 2.0 : 0.0) == 0.0 && rested < 60.0)
            rested += 2.0;
        EXPECT_EQ(rested, row.rest) << row.name;
        EXPECT_EQ(load(), 0.8) << row.name; // a busy one is asked on every pass
    }
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryIsAskedOnlyOfGPUsAwake) {
    setNvidiaLoads(30, 60);
    write("bus/pci/drivers/nvidia/new_id", "");
    const struct {
        const char* power;
        const char* other;
        double load;
        std::vector<std::optional<double>> temperatures;
        int jobs;
        std::vector<std::string> calls;
    } rows[] = {
        {"active", "suspended", 0.0, {{}, {}}, 0, {}}, // looking for the one may wake the other
        {"active", "active", 0.6, {15.0, 30.0}, 1, {"start", "find 0000:01:00.0", "find 0000:02:00.0", "load", "load"}},
        {"active", "suspended", 0.3, {15.0, {}}, 1, {"load"}},
        {"unsupported", "suspended", 0.3, {15.0, {}}, 1, {"load"}}, // never sleeps
        {"suspended", "suspended", 0.0, {{}, {}}, 1, {"stop"}},
    };
    for (const auto& row : rows) {
        setPower(nvidiaDevice, row.power);
        setPower(otherNvidia, row.other);
        EXPECT_EQ(load(), row.load) << row.power << ' ' << row.other;
        std::vector<std::optional<double>> temperatures;
        for (const TimedValue& temperature : *source.nvidiaTemperatures())
            temperatures.push_back(temperature.value(clock.now));
        EXPECT_EQ(temperatures, row.temperatures) << row.power << ' ' << row.other;
        EXPECT_THAT(takeCalls(), ::testing::UnorderedElementsAreArray(row.calls));
        EXPECT_EQ(std::exchange(background->jobs, 0), row.jobs);
    }
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryLetsGoOfAnIdleGPUAtOnce) {
    setPower(nvidiaDevice, "active");
    write(nvidiaDevice + "power/control", "auto");
    setNvidiaLoads(0);
    clock.now = 119.0;
    EXPECT_EQ(load(), 0.0);
    EXPECT_EQ(takeCalls().back(), "stop");
    setNvidiaLoads(80);
    EXPECT_EQ(load(5.0), 0.0);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_EQ(load(), 0.8);
    EXPECT_EQ(takeCalls().back(), "load"); // and stays started
}

TEST_F(LinuxGPUSourceTest, OnlyErrorsOfTheWholeLibraryStopIt) {
    setPower(nvidiaDevice, "active");
    setPower(otherNvidia, "active");
    const struct {
        int answer;
        bool stops;
    } rows[] = {{3, false}, {1, true}, {999, true}}; // 3: tells no load
    for (const auto& row : rows) {
        setNvidiaLoads(failing(row.answer), 60);
        load(61.0);
        EXPECT_EQ(nvidia.calls.back() == "stop", row.stops) << row.answer;
        EXPECT_EQ(load(), row.stops ? std::nullopt : std::optional(0.6)) << row.answer;
    }
}

TEST_F(LinuxGPUSourceTest, NvidiaAnswersThatStayOutCountForTenSeconds) {
    setPower(nvidiaDevice, "active");
    setNvidiaLoads(70);
    EXPECT_EQ(load(), 0.7);
    background->hangs = true;
    EXPECT_EQ(load(), 0.7);
    EXPECT_EQ(load(10.0), 0.7);
    EXPECT_EQ(load(), std::nullopt);
    EXPECT_EQ(background->jobs, 2); // one question at a time
    setPower(otherNvidia, "active");
    EXPECT_EQ(load(), std::nullopt); // of the new one, too
}

} // namespace
} // namespace vantrix
