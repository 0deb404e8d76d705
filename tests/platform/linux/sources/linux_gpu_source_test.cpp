#include "platform/linux/sources/linux_gpu_source.h"

#include <map>

#include <gmock/gmock.h>

#include "opened_files.h"
#include "samplers/fake_clock.h"
#include "temporary_folder.h"

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
    std::optional<unsigned> utilization(Device device) override {
        const unsigned load = *static_cast<unsigned*>(device);
        state_.calls.push_back("load");
        return load <= 100 ? std::optional(load) : std::nullopt;
    }
    State& state_;
};

struct LinuxGPUSourceTest : ::testing::Test {
    TemporaryFolder folder;
    FakeNvidia::State nvidia;
    std::unique_ptr<FakeClock> ownedClock = std::make_unique<FakeClock>();
    FakeClock& clock = *ownedClock;
    LinuxGPUSource source{folder.path("sys"), std::move(ownedClock), std::make_unique<FakeNvidia>(nvidia), 1};

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
    setPower(cardDevice, "active");
    write(cardDevice, "power/control", "auto\n");
    write(cardDevice, "power/autosuspend_delay_ms", "5000\n");
    write(cardDevice, "gpu_busy_percent", "0\n");
    EXPECT_EQ(load(), 0.0);
    write(cardDevice, "gpu_busy_percent", "80\n");
    EXPECT_EQ(load(5.5), 0.0); // not asked
    EXPECT_EQ(load(), 0.8);
    EXPECT_EQ(load(), 0.8);
    for (const char* file : {"power/control", "power/autosuspend_delay_ms", "boot_vga"}) {
        write(cardDevice, file, file == std::string("boot_vga") ? "1\n" : file[6] == 'c' ? "on\n" : "-1\n");
        write(cardDevice, "gpu_busy_percent", "0\n");
        EXPECT_EQ(load(), 0.0);
        write(cardDevice, "gpu_busy_percent", "80\n");
        EXPECT_EQ(load(), 0.8) << file; // stays awake anyhow
        write(cardDevice, "power/control", "auto\n");
        write(cardDevice, "power/autosuspend_delay_ms", "5000\n");
    }
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
    setPower(nvidiaDevice, "unsupported");
    EXPECT_EQ(load(), 0.0); // of the sleeping one
    EXPECT_THAT(nvidia.calls, ElementsAre("load", "stop"));
}

TEST_F(LinuxGPUSourceTest, NvidiaLibraryThatFailsIsTriedAgainMuchLater) {
    setPower(nvidiaDevice, "active");
    nvidia.loads["0000:01:00.0"] = 101; // fails
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

} // namespace
} // namespace vantrix
