#pragma once

#include <cstdint>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

#include "fakes/fixture_machine.h"

namespace vantrix {

namespace fs = std::filesystem;

/// A laptop that has everything, on which everything comes, goes, breaks and wraps.
class ChangingMachine {
  public:
    ChangingMachine() {
        for (const std::string& name : laptop_.files())
            files_.emplace_back(laptop_.path(name), laptop_.read(name));
        for (const char* folder : {"hwmon", "power_supply", "drm", "powercap", "net"})
            for (const auto& device : fs::directory_iterator(laptop_.path("sys/class/") + folder))
                devices_.push_back(device.path());
    }

    KernelRoots roots() const { return laptop_.roots(); }

    /// Time goes on, and something happens, or several things.
    void change() {
        for (std::size_t count = below(4); count > 0; --count)
            changeOnce();
        if (below(8) == 0)
            counter_ = below(2) == 0 ? 0 : random_() >> below(40); // counters start over, or leap
        advance();
    }

    /// Every device and file as at first, but for the counters, which go on.
    void restore() {
        for (const fs::path& device : devices_)
            move(away(device), device);
        for (const auto& [path, content] : files_)
            write(path, content);
        counter_ = calmCounter;
    }

    void advance() {
        counter_ += 40;
        std::ostringstream cores;
        for (int core = -1; core < 16; ++core)
            cores << "cpu" << (core < 0 ? " " : std::to_string(core)) << ' ' << counter_ + wrappingTicks << " 0 "
                  << counter_ / 2 << " 0 " << counter_ * 3 << " 0 0 0 0 0\n";
        write(laptop_.path("proc/stat"), cores.str());
        writeEnergy("intel-rapl:0", counter_ * 200'000);
        writeEnergy("intel-rapl:0:1", counter_ * 50'000); // of the package, graphics
        writeEnergy("intel-rapl:0:2", counter_ * 30'000);
    }

  private:
    // From here on both the ticks of a processor and the energy of a package wrap around within the last passes.
    static constexpr std::uint64_t calmCounter = 1'310'600;
    static constexpr std::uint64_t wrappingTicks = (std::uint64_t{1} << 32) - 1'310'700;

    std::size_t below(std::size_t limit) { return random_() % limit; }

    /// In place, as the kernel's files change; nothing where the device is gone.
    static void write(const fs::path& path, std::string_view content) {
        if (fs::exists(path))
            std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    }

    void writeEnergy(const char* zone, std::uint64_t microjoules) const {
        constexpr std::uint64_t range = 262'143'328'850;
        write(laptop_.path("sys/class/powercap/") + zone + "/energy_uj", std::to_string(microjoules % range) + '\n');
    }

    void changeOnce() {
        const fs::path& device = devices_[below(devices_.size())];
        const auto& [path, content] = files_[below(files_.size())];
        switch (below(4)) {
        case 0:
            return move(device, away(device));
        case 1:
            return move(away(device), device);
        case 2:
            return write(path, std::string_view(content).substr(0, below(content.size() + 1)));
        default:
            return write(path, content);
        }
    }

    /// Where a device is while it is gone.
    fs::path away(const fs::path& device) const {
        return laptop_.path(device.parent_path().filename().string() + ' ' + device.filename().string());
    }

    static void move(const fs::path& from, const fs::path& to) {
        if (fs::exists(fs::symlink_status(from))) // a device is a link, which leads nowhere while it is away
            fs::rename(from, to);
    }

    fakes::FixtureMachine laptop_{"laptop-with-everything"};
    std::mt19937_64 random_{20};
    std::vector<std::pair<fs::path, std::string>> files_;
    std::vector<fs::path> devices_;
    std::uint64_t counter_ = calmCounter;
};

} // namespace vantrix
