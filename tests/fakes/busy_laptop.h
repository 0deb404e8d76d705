#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace vantrix::fakes {

/// Writes the kernel's trees of a laptop that has everything below `root`, put together from the recorded machines
/// under `fixtures`: 16 cores, 40 temperature inputs, 2 fans, 2 batteries, 3 graphics processors of which one sleeps,
/// counters of energy, and accessories.
inline void writeBusyLaptop(const std::filesystem::path& fixtures, const std::filesystem::path& root) {
    namespace fs = std::filesystem;
    constexpr auto options = fs::copy_options::recursive | fs::copy_options::copy_symlinks;
    const fs::path packs = fixtures / "two-packs-and-accessories/sys/class/power_supply";
    fs::copy(fixtures / "laptop-hybrid-cores", root, options);
    fs::copy(fixtures / "laptop-many-sensors/sys", root / "sys", options);
    fs::create_directories(root / "sys/class/drm");
    fs::copy(fixtures / "gpu-asleep-beside-another/sys/class/drm", root / "sys/class/drm", options);
    for (const auto& supply : fs::directory_iterator(packs)) {
        const fs::path place = root / "sys/class/power_supply" / supply.path().filename();
        if (!fs::exists(place))
            fs::copy(supply, place, options);
        else if (!fs::exists(place / "uevent"))
            fs::copy(supply.path() / "uevent", place / "uevent");
    }
    std::ofstream cores(root / "proc/stat");
    cores << "cpu  16000 160 8000 1440000 1600 80 96 112 0 0\n";
    for (int core = 0; core < 16; ++core)
        cores << "cpu" << core << " 1000 10 500 90000 100 5 6 7 0 0\n";
    cores << "intr 12345 0 0\nctxt 54321\nbtime 1700000000\nprocesses 4321\nprocs_running 2\n";
    std::ofstream(root / "proc/net/route") << "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\t"
                                              "Window\tIRTT\nwlp0s20f3\t00000000\t0100A8C0\t0003\t0\t0\t600\t00000000\t"
                                              "0\t0\t0\n";
    std::ofstream(root / "proc/net/ipv6_route");
    fs::create_directories(root / "sys/class/net/wlp0s20f3/phy80211");
}

} // namespace vantrix::fakes
