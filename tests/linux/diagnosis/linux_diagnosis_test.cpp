#include "linux/diagnosis/diagnosis_parts.h"

#include <gmock/gmock.h>

#include "fakes/fake_volumes.h"
#include "fakes/fixture_machine.h"
#include "linux/opened_files.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// "state source", or "state source: reason" of each row of a reading.
std::vector<std::string> told(const DiagnosisTools& tools, std::string_view name) {
    constexpr const char* states[] = {"ok", "absent", "asleep", "denied", "silent", "damaged"};
    std::vector<std::string> rows;
    for (SourceDiagnosis& row : diagnoseSources(tools)) {
        if (row.name != name)
            continue;
        for (const auto& [root, shown] : {std::pair(tools.roots.sys, "SYS"), std::pair(tools.roots.proc, "PROC")})
            for (auto at = row.source.find(root); at != std::string::npos; at = row.source.find(root))
                row.source.replace(at, root.size(), shown);
        rows.push_back(states[static_cast<int>(row.state)] + (' ' + row.source) +
                       (row.reason.empty() ? "" : ": " + row.reason));
    }
    return rows;
}

DiagnosisTools toolsFor(const fakes::FixtureMachine& machine) {
    return {machine.roots(), reachOf, [] { return false; }, fakes::volumesOf(machine.read("statvfs"))};
}

TEST(Diagnosis, SaysWhatEachMachineLacks) {
    const struct {
        const char* machine;
        std::string_view reading;
        const char* beginning;
        const char* words;
    } rows[] = {
        {"zram-in-use", reading_name::memory, "ok PROC/meminfo, zram: In use:", "locked files."},
        {"zfs-host", reading_name::memory, "ok PROC/meminfo, PROC/spl/kstat/zfs/arcstats: In use:", "ZFS's cache"},
        {"ordinary-desktop", reading_name::diskSpace, "ok statvfs of /", ""},
        {"immutable-system", reading_name::diskSpace, "ok statvfs of /var: ", "at / is read-only"},
        {"no-psi", reading_name::pressure, "absent ", "does not measure stalls"},
        {"programs-at-work", reading_name::programs, "ok PROC/PID/stat: Read while", "root alone."},
        {"no-psi", reading_name::programs, "absent ", "No processes"},
        {"board-with-thermal-zones-alone", reading_name::temperatures, "ok SYS/class/thermal (5 zones)",
         "; CPU: cpu0-thermal, cpu1-thermal"},
        {"two-socket-server", reading_name::temperatures, "ok SYS/class/hwmon (2 chips)",
         "; CPU: coretemp Package id 0, coretemp Package id 1"},
        {"desktop-resting-disk-sleeping-gpu", reading_name::temperatures, "ok SYS/class/hwmon (5 chips)",
         "Left asleep: amdgpu. Not asked while idle, so that it may spin down: drivetemp."},
        {"laptop-many-sensors", reading_name::systemPower, "ok SYS/class/powercap/intel-rapl:1/energy_uj", ""},
        {"virtual-machine-with-accelerated-port", reading_name::network, "ok ", "same bytes: 1 enslaved to it (as"},
        {"router-with-switch", reading_name::network, "ok ",
         "(1 port): Left out, because another port counts the same bytes: 3 stacked on it (as"},
        {"container", reading_name::battery, "absent SYS/class/power_supply", "no battery"},
    };
    for (const auto& row : rows) {
        const auto text = told(toolsFor(fakes::FixtureMachine(row.machine)), row.reading);
        ASSERT_EQ(text.size(), 1u) << row.machine << ' ' << row.reading;
        EXPECT_THAT(text.front(), ::testing::StartsWith(row.beginning)) << row.machine;
        EXPECT_THAT(text.front(), HasSubstr(row.words)) << row.machine;
    }
}

TEST(Diagnosis, SaysHowToGetAtWhatIsDenied) {
    const fakes::FixtureMachine machine("laptop-many-sensors");
    auto tools = toolsFor(machine);
    tools.reach = [](const std::string& path) {
        return path.ends_with("energy_uj") || path.ends_with("stat") ? Reach::denied : reachOf(path);
    };
    EXPECT_THAT(told(tools, reading_name::chipPower),
                ElementsAre(HasSubstr("/class/powercap/intel-rapl:*/energy_uj 0440 root GROUP -")));
    EXPECT_THAT(told(tools, reading_name::systemPower), ElementsAre(HasSubstr("ok SYS/class/power_supply/BAT0")));
    EXPECT_THAT(told(tools, reading_name::processor), ElementsAre(HasSubstr("denied ")));
    machine.write("proc/77/stat", "");
    EXPECT_THAT(told(tools, reading_name::programs), ElementsAre(HasSubstr("hidepid")));
}

TEST(Diagnosis, SleepingGPUsAreLeftAsleep) {
    const TemporaryFolder folder;
    const std::string card = "sys/class/drm/card1/";
    const std::string nvidia = "sys/bus/pci/drivers/nvidia/0000:01:00.0/";
    folder.write(card + "device/power/runtime_status", "suspended\n");
    folder.write(card + "device/gpu_busy_percent", "1\n");
    folder.write(card + "gt/gt0/rc6_residency_ms", "1\n");
    folder.write(nvidia + "power/runtime_status", "suspended\n");
    folder.write(nvidia + "boot_vga", "0\n");
    OpenedFiles ofCard(folder.path(card));
    OpenedFiles ofNvidia(folder.path(nvidia));
    const KernelRoots roots{folder.path("proc"), folder.path("sys")};
    EXPECT_THAT(told({roots, reachOf, [] { return true; }}, reading_name::gpu),
                ElementsAre(HasSubstr("asleep SYS/class/drm/card1/device: "),
                            HasSubstr("asleep SYS/bus/pci/drivers/nvidia/0000:01")));
    EXPECT_THAT(ofCard.take(), ElementsAre("runtime_status"));
    folder.remove(card + "device/gpu_busy_percent");
    folder.remove(card + "gt");
    EXPECT_THAT(told({roots, reachOf, [] { return false; }}, reading_name::gpu),
                ElementsAre(HasSubstr("No driver is bound"), HasSubstr("not installed")));
    EXPECT_THAT(ofNvidia.take(), ElementsAre("runtime_status"));
}

TEST(Diagnosis, NamesOfPeoplesDevicesStayOut) {
    for (const char* machine : {"two-packs-and-accessories", "laptop-many-sensors", "many-interfaces"})
        for (const SourceDiagnosis& row : diagnoseSources(toolsFor(fakes::FixtureMachine(machine))))
            for (const char* secret : {"hid-", "hidpp", "wacom", "aa:bb", "eno1", "wlp"})
                EXPECT_EQ((row.source + row.reason).find(secret), std::string::npos) << machine << ' ' << secret;
}

TEST(ProcessStatistics, SumsWhatTheProcessCost) {
    const fakes::FixtureMachine machine("process-of-two-threads"); // whose status tells of the first thread alone
    const std::string proc = machine.path("proc");
    EXPECT_EQ(processStatistics(8, proc), std::nullopt);
    EXPECT_EQ(processStatistics(7, proc), (ProcessStatistics{100.5, 3.0, 1.0, 48 * 1024, 10 * 1024, 15, 2}));
    machine.remove("proc/7/smaps_rollup");
    EXPECT_EQ(processStatistics(7, proc).value().residentBytes, std::nullopt);
}

} // namespace
} // namespace vantrix
