#include "linux/graphics/linux_gpu_source.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <future>
#include <map>

#include <gmock/gmock.h>

#include "linux/opened_files.h"
#include "linux/sensors/linux_temperatures.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct FakeNvidia : NvidiaLibrary {
    struct State {
        bool isInstalled = true;
        std::map<std::string, unsigned> loads;
        std::vector<std::string> calls;
    };
    explicit FakeNvidia(State& state) : state_(state) {}
    bool start() override {
        state_.calls.push_back("start");
        return state_.isInstalled;
    }
    void stop() override { state_.calls.push_back("stop"); }
    std::optional<Device> find(const std::string& address) override {
        state_.calls.push_back("find " + address);
        const auto found = state_.loads.find(address);
        return found == state_.loads.end() ? std::nullopt : std::optional<Device>(&found->second);
    }
    int utilization(Device device, unsigned& percent) override {
        const unsigned load = *static_cast<unsigned*>(device);
        state_.calls.push_back("load");
        percent = load;
        return load > 100 ? static_cast<int>(load) - 1000 : success;
    }
    std::optional<double> temperature(Device device) override { return *static_cast<unsigned*>(device) / 2.0; }
    State& state_;
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
};

struct LinuxGPUSourceTest : ::testing::Test {
    TemporaryFolder folder;
    FakeNvidia::State nvidia;
    std::unique_ptr<FakeClock> ownedClock = std::make_unique<FakeClock>();
    FakeClock& clock = *ownedClock;
    std::shared_ptr<FakeBackground> background = std::make_shared<FakeBackground>();
    LinuxGPUSource source{folder.path("sys"), std::move(ownedClock), std::make_unique<FakeNvidia>(nvidia), 1,
                          background};

    void write(const std::string& device, const std::string& file, const std::string& text) {
        folder.write("sys/" + device + '/' + file, text);
    }
    void setPower(const std::string& device, const std::string& status) {
        write(device, "power/runtime_status", status + '\n');
    }
    /// The load of the machine, a second after the last.
    std::optional<double> load(double seconds = 1.0) {
        clock.now += seconds;
        return GPUSampler(source).sample();
    }
};

const std::string card = "class/drm/card1";
const std::string cardDevice = card + "/device";
const std::string nvidiaDevice = "bus/pci/drivers/nvidia/0000:01:00.0";

TEST_F(LinuxGPUSourceTest, FollowsALoadFileThatComesAndGoes) {
    EXPECT_EQ(load(), std::nullopt);
    write(card + "-HDMI-A-1", "status", "connected\n");
    EXPECT_EQ(load(), std::nullopt);
    write(cardDevice, "gpu_busy_percent", "42\n");
    EXPECT_EQ(load(), 0.42); // no power state is no sleep
    setPower(cardDevice, "unsupported");
    write(cardDevice, "gpu_busy_percent", "\n");
    EXPECT_EQ(load(), std::nullopt);
    write(cardDevice, "gpu_busy_percent", "100\n");
    EXPECT_EQ(load(), 1.0);
    folder.remove("sys/class/drm");
    EXPECT_EQ(load(), std::nullopt);
    write(cardDevice, "gpu_busy_percent", "7\n");
    load(); // the folder itself was gone
    EXPECT_EQ(load(), 0.07);
}

TEST_F(LinuxGPUSourceTest, ReadsTheFirstMeterOfEachDriver) {
    const struct {
        const char* name;
        std::vector<std::string> idleFiles; // counting milliseconds
        std::string folder;
    } rows[] = {
        {"i915", {"gt/gt0/rc6_residency_ms", "gt/gt1/rc6_residency_ms"}, card},
        {"old i915", {"power/rc6_residency_ms"}, card},
        {"xe", {"tile0/gt0/gtidle/idle_residency_ms", "tile1/gt2/gtidle/idle_residency_ms"}, cardDevice},
    };
    for (const auto& row : rows) {
        folder.remove("sys/class/drm");
        load();
        setPower(cardDevice, "active");
        for (const auto& file : row.idleFiles)
            write(row.folder, file, "5000\n");
        EXPECT_EQ(load(), std::nullopt) << row.name;
        write(row.folder, row.idleFiles.back(), "6500\n");
        write(row.folder, row.idleFiles.front(), "5500\n"); // the busier, where there are two
        EXPECT_DOUBLE_EQ(load(2.0).value_or(-1.0), 0.75) << row.name;
        EXPECT_EQ(load(0.0), std::nullopt) << row.name << ", no time";
        for (const auto& file : row.idleFiles)
            write(row.folder, file, "9000\n");
        EXPECT_EQ(load(), 0.0) << row.name << ", more idle than time";
        for (const auto& file : row.idleFiles)
            write(row.folder, file, "10\n");
        EXPECT_EQ(load(), std::nullopt) << row.name << ", counter started over";
        EXPECT_EQ(load(), 1.0) << row.name;
    }
}

TEST_F(LinuxGPUSourceTest, CounterThatMayNotCountIsNotRead) {
    write(card, "gt/gt0/rc6_enable", "0\n");
    write(card, "gt/gt0/rc6_residency_ms", "0\n");
    load();
    EXPECT_EQ(load(), std::nullopt);
}

TEST_F(LinuxGPUSourceTest, DevfreqLoadOfGPUsAlone) {
    write("class/devfreq/dmc/device/devfreq/dmc", "load", "90@1\n");
    write("class/devfreq/ff9a0000.gpu/device/devfreq/ff9a0000.gpu", "load", "37@800000000Hz\n");
    EXPECT_EQ(load(), 0.37);
    write("class/devfreq/ff9a0000.gpu/device/devfreq/ff9a0000.gpu", "load", "37 of 80\n");
    EXPECT_EQ(load(), std::nullopt);
}

TEST_F(LinuxGPUSourceTest, SleepingGPUIsLeftAsleep) {
    const std::string intel = "class/drm/card2";
    setPower(cardDevice, "suspended");
    write(cardDevice, "power/control", "auto\n");
    write(cardDevice, "gpu_busy_percent", "42\n");
    setPower(intel + "/device", "suspended");
    write(intel, "gt/gt0/rc6_residency_ms", "1\n");
    write(intel, "device/tile0/gt0/gtidle/idle_residency_ms", "1\n");
    write(intel, "device/devfreq/a.gpu/load", "1\n");
    setPower(nvidiaDevice, "suspended");
    write(nvidiaDevice, "power/control", "auto\n");
    nvidia.loads["0000:01:00.0"] = 50;
    OpenedFiles ofCard(folder.path("sys/" + card));
    OpenedFiles ofIntel(folder.path("sys/" + intel));
    OpenedFiles ofNvidia(folder.path("sys/" + nvidiaDevice));
    for (int pass = 0; pass < 100; ++pass)
        EXPECT_EQ(load(), 0.0);
    EXPECT_THAT(ofCard.take(), ElementsAre("runtime_status"));
    EXPECT_THAT(ofIntel.take(), ElementsAre("runtime_status"));
    EXPECT_THAT(ofNvidia.take(), ElementsAre("runtime_status"));
    EXPECT_THAT(nvidia.calls, IsEmpty());

    setPower(cardDevice, "active");
    EXPECT_EQ(load(), 0.42);
    EXPECT_TRUE(ofCard.take().contains("gpu_busy_percent")); // else nothing was watched at all
    setPower(cardDevice, "suspending");
    ofCard.take();
    EXPECT_EQ(load(), 0.0); // known and open by now, and still left alone
    EXPECT_THAT(ofCard.take(), ElementsAre("runtime_status"));
}

/// A GPU that is asked on every pass never reaches the end of its autosuspend delay.
TEST_F(LinuxGPUSourceTest, IdleGPUIsGivenTheTimeToFallAsleep) {
    const struct {
        const char* name;
        const char* control;
        const char* delay;
        const char* isPrimary;
        const char* screen;
        double restUntil; // seconds after a line of the grids of 6 and 12 s
    } rows[] = {
        {"by itself", "auto", "5000", "0", "On", 6.0},
        {"without a delay", "auto", "", "0", "On", 6.0},
        {"late", "auto", "60000", "0", "On", 12.0},
        {"primary without a screen", "auto", "5000", "1", "Off", 6.0},
        {"primary with a screen", "auto", "5000", "1", "On", 0.0},
        {"kept awake", "on", "5000", "0", "On", 0.0},
        {"never by itself", "auto", "-1", "0", "On", 0.0},
    };
    setPower(cardDevice, "active");
    for (const auto& row : rows) {
        clock.now += 24.0 - std::fmod(clock.now, 12.0);
        write(cardDevice, "power/control", row.control + std::string("\n"));
        write(cardDevice, "power/autosuspend_delay_ms", row.delay + std::string("\n"));
        write(cardDevice, "boot_vga", row.isPrimary + std::string("\n"));
        write(cardDevice, "drm/card1/card1-eDP-1/dpms", row.screen + std::string("\n"));
        write(cardDevice, "gpu_busy_percent", "0\n");
        EXPECT_EQ(load(0.0), 0.0) << row.name;
        write(cardDevice, "gpu_busy_percent", "80\n");
        double rested = 0.0;
        while (load(row.restUntil > 0.0 ? 2.0 : 0.0) == 0.0 && rested < 60.0)
            rested += 2.0;
        EXPECT_EQ(rested + (row.restUntil > 0.0 ? 2.0 : 0.0), row.restUntil) << row.name;
        EXPECT_EQ(load(), 0.8) << row.name; // a busy one is asked on every pass
    }
}

TEST_F(LinuxGPUSourceTest, GPUThatNeverTellsItsLoadHasItsRest) {
    setPower(cardDevice, "active");
    write(cardDevice, "power/control", "auto\n");
    write(cardDevice, "gpu_busy_percent", "");
    clock.now = 120.0; // a line of every grid
    load(0.0);
    load();
    OpenedFiles opened(folder.path("sys/" + card));
    EXPECT_EQ(load(), std::nullopt);
    EXPECT_THAT(opened.take(), ElementsAre("runtime_status"));
}

TEST_F(LinuxGPUSourceTest, NewScreensLoseNothingOfKnownGPUs) {
    write(card, "gt/gt0/rc6_residency_ms", "1000\n");
    nvidia.loads["0000:01:00.0"] = 90;
    setPower(nvidiaDevice, "active");
    load();
    nvidia.calls.clear();
    write(card + "-DP-5", "status", "connected\n");
    write(card, "gt/gt0/rc6_residency_ms", "1250\n");
    nvidia.loads["0000:01:00.0"] = 0;
    EXPECT_EQ(load(), 0.75);
    EXPECT_THAT(nvidia.calls, ElementsAre("load"));
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryIsAskedOnlyOfGPUsAwake) {
    const std::string other = "bus/pci/drivers/nvidia/0000:02:00.0";
    nvidia.loads = {{"0000:01:00.0", 30}, {"0000:02:00.0", 60}};
    write("bus/pci/drivers/nvidia", "new_id", "");
    setPower(nvidiaDevice, "active");
    setPower(other, "suspended");
    EXPECT_EQ(load(), 0.0);
    EXPECT_THAT(nvidia.calls, IsEmpty()); // looking for the one may wake the other
    setPower(other, "active");
    EXPECT_EQ(load(), 0.6);
    EXPECT_EQ(nvidia.calls.size(), 5u);
    nvidia.calls.clear();
    setPower(other, "suspended");
    EXPECT_EQ(load(), 0.3);
    EXPECT_THAT(nvidia.calls, ElementsAre("load"));
    setPower(nvidiaDevice, "unsupported"); // never sleeps
    EXPECT_EQ(load(), 0.3);
    setPower(nvidiaDevice, "suspended");
    EXPECT_EQ(load(), 0.0);
    EXPECT_THAT(nvidia.calls, ElementsAre("load", "load", "stop"));
    const int jobs = background->jobs;
    load();
    EXPECT_EQ(background->jobs, jobs); // nothing to ask
}

TEST_F(LinuxGPUSourceTest, NvidiaTellsTheTemperatureOfTheHottestGPUAwake) {
    const auto service = [&]() -> std::optional<double> {
        load();
        LinuxTemperatures temperatures(folder.path("sys"), std::make_shared<FakeClock>(clock),
                                       source.nvidiaTemperature());
        std::vector<HIDTemperatureSampler::Service> services;
        EXPECT_TRUE(temperatures.read(services));
        if (services.empty())
            return std::nullopt;
        EXPECT_EQ(services.back().product, "GPU NVIDIA");
        return services.back().temperature;
    };
    nvidia.loads = {{"0000:01:00.0", 100}, {"0000:02:00.0", 80}};
    EXPECT_EQ(service(), std::nullopt);
    setPower(nvidiaDevice, "active");
    setPower("bus/pci/drivers/nvidia/0000:02:00.0", "active");
    EXPECT_EQ(service(), 50.0);
    setPower(nvidiaDevice, "suspended");
    EXPECT_EQ(service(), 40.0);
    setPower("bus/pci/drivers/nvidia/0000:02:00.0", "suspended");
    EXPECT_EQ(service(), std::nullopt);
    EXPECT_EQ(NvidiaTemperature().value(0.0), std::nullopt);
    NvidiaTemperature old;
    old.set(50.0, 100.0);
    EXPECT_EQ(old.value(161.0), std::nullopt);
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryLetsGoOfAnIdleGPUAtOnce) {
    setPower(nvidiaDevice, "active");
    write(nvidiaDevice, "power/control", "auto\n");
    nvidia.loads["0000:01:00.0"] = 0;
    clock.now = 119.0;
    EXPECT_EQ(load(), 0.0);
    EXPECT_EQ(nvidia.calls.back(), "stop");
    nvidia.loads["0000:01:00.0"] = 80;
    nvidia.calls.clear();
    EXPECT_EQ(load(5.0), 0.0);
    EXPECT_THAT(nvidia.calls, IsEmpty());
    EXPECT_EQ(load(), 0.8);
    EXPECT_EQ(nvidia.calls.back(), "load"); // and stays started
}

TEST_F(LinuxGPUSourceTest, OnlyErrorsOfTheWholeLibraryStopIt) {
    setPower(nvidiaDevice, "active");
    setPower("bus/pci/drivers/nvidia/0000:02:00.0", "active");
    const struct {
        int answer;
        bool stops;
    } rows[] = {{3, false}, {6, false}, {1, true}, {15, true}, {999, true}}; // 3: tells no load
    for (const auto& row : rows) {
        nvidia.loads = {{"0000:01:00.0", failing(row.answer)}, {"0000:02:00.0", 60}};
        load(61.0);
        EXPECT_EQ(nvidia.calls.back() == "stop", row.stops) << row.answer;
        EXPECT_EQ(load(), row.stops ? std::nullopt : std::optional(0.6)) << row.answer;
    }
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryThatFailsIsTriedAgainMuchLater) {
    setPower(nvidiaDevice, "active");
    nvidia.loads["0000:01:00.0"] = failing(NvidiaLibrary::unknownError);
    EXPECT_EQ(load(), std::nullopt);
    nvidia.loads["0000:01:00.0"] = 10;
    nvidia.isInstalled = false;
    EXPECT_EQ(load(30.0), std::nullopt);
    EXPECT_EQ(nvidia.calls.back(), "stop");
    EXPECT_EQ(load(31.0), std::nullopt);
    EXPECT_EQ(nvidia.calls.back(), "start");
    nvidia.isInstalled = true;
    EXPECT_EQ(load(61.0), 0.1);
}

TEST_F(LinuxGPUSourceTest, NvidiaAnswersThatStayOutCountForTenSeconds) {
    setPower(nvidiaDevice, "active");
    nvidia.loads["0000:01:00.0"] = 70;
    EXPECT_EQ(load(), 0.7);
    background->hangs = true;
    EXPECT_EQ(load(), 0.7);
    EXPECT_EQ(load(10.0), 0.7);
    EXPECT_EQ(load(), std::nullopt);
    EXPECT_EQ(background->jobs, 2); // one question at a time
    write(nvidiaDevice + "/../0000:02:00.0", "power/runtime_status", "active\n");
    EXPECT_EQ(load(), std::nullopt); // of the new one, too
}

/// Hangs in its start until the gate opens. Its test may be over by then.
struct HangingNvidia : NvidiaLibrary {
    std::shared_future<void> gate;
    std::shared_ptr<std::atomic<bool>> hasBegun;
    std::promise<void> end;

    bool start() override {
        *hasBegun = true;
        gate.wait();
        return false;
    }
    void stop() override {}
    std::optional<Device> find(const std::string&) override { return std::nullopt; }
    int utilization(Device, unsigned&) override { return notInitialized; }
    std::optional<double> temperature(Device) override { return std::nullopt; }
    ~HangingNvidia() override { end.set_value(); }
};

TEST(NvidiaLibrary, ThatHangsHoldsUpNeitherPassesNorTheEnd) {
    const TemporaryFolder folder;
    folder.write("bus/pci/drivers/nvidia/0000:01:00.0/power/runtime_status", "active\n");
    std::promise<void> gate;
    auto library = std::make_unique<HangingNvidia>();
    library->gate = gate.get_future().share();
    const auto hasBegun = library->hasBegun = std::make_shared<std::atomic<bool>>(false);
    const auto end = library->end.get_future();
    {
        LinuxGPUSource source(folder.path(""), std::make_unique<FakeClock>(), std::move(library));
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!*hasBegun && std::chrono::steady_clock::now() < deadline)
            EXPECT_EQ(GPUSampler(source).sample(), std::nullopt);
        EXPECT_EQ(GPUSampler(source).sample(), std::nullopt);
    }
    EXPECT_EQ(end.wait_for(std::chrono::seconds(0)), std::future_status::timeout); // it hangs still
    gate.set_value();
    EXPECT_EQ(end.wait_for(std::chrono::seconds(10)), std::future_status::ready);
}

} // namespace
} // namespace vantrix
