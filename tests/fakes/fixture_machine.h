#pragma once

#include "linux/temporary_folder.h"
#include "platform/sampling_sources.h"

namespace vantrix::fakes {

/// The kernel's trees of a machine under tests/fixtures: the ordinary desktop there, less the paths that the machine's
/// file `absent` lists, with the machine's own files over it.
class FixtureMachine : public TemporaryFolder {
  public:
    explicit FixtureMachine(const std::string& name) {
        lay("ordinary-desktop");
        lay(name);
    }

    KernelRoots roots() const { return {path("proc"), path("sys")}; }

  protected:
    void lay(const std::string& name) const {
        using Options = std::filesystem::copy_options;
        const std::string machine = std::string(FIXTURES) + '/' + name;
        std::ifstream absent(machine + "/absent");
        for (std::string entry; std::getline(absent, entry);)
            remove(entry);
        std::filesystem::copy(machine, path(""),
                              Options::recursive | Options::copy_symlinks | Options::overwrite_existing);
        remove("absent");
    }
};

/// A laptop that has everything: 16 cores, 40 temperature inputs, 2 fans, 2 batteries, 3 graphics processors of which
/// one sleeps, counters of energy, and accessories.
class BusyLaptop : public FixtureMachine {
  public:
    BusyLaptop() : FixtureMachine("laptop-hybrid-cores") {
        lay("gpu-asleep-beside-another");
        remove("sys/class/devfreq"); // a fourth, of a board
        lay("laptop-many-sensors");
        lay("two-packs-and-accessories");
        std::string cores = "cpu  16000 160 8000 1440000 1600 80 96 112 0 0\n";
        for (int core = 0; core < 16; ++core)
            cores += "cpu" + std::to_string(core) + " 1000 10 500 90000 100 5 6 7 0 0\n";
        write("proc/stat", cores + "intr 12345 0 0\nctxt 54321\nbtime 1700000000\nprocesses 4321\nprocs_running 2\n");
        write("proc/net/route", "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
                                "wlp0s20f3\t00000000\t0100A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n");
        write("proc/net/ipv6_route", "");
        std::filesystem::create_directories(path("sys/class/net/wlp0s20f3/phy80211"));
    }
};

} // namespace vantrix::fakes
