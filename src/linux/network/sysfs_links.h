#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/kernel_file.h"
#include "linux/network/link_states.h"

namespace vantrix {

/// True when a device stands behind the interface: <sys>/class/net/<name>/device exists.
bool isHardwareLink(const std::string& sys, std::string_view name);

/// A number as sysfs writes flags: "0x1003".
std::optional<std::uint32_t> parseLinkFlags(std::string_view text);

/// States of links from <sys>/class/net, for machines whose network namespace is out of reach. Only the files of
/// hardware ports are read.
class SysfsLinks : public LinkStates {
  public:
    explicit SysfsLinks(std::string sys) : sys_(std::move(sys)) {}

    bool refresh() override { return true; }
    LinkState state(std::string_view name, std::size_t place) override;

  private:
    struct Port {
        KernelFile flags;
        KernelFile operState;
        KernelFile carrier;

        std::uint32_t readFlags();
        bool isRunning();
    };
    struct Known {
        std::string name;
        std::optional<Port> port; ///< only of hardware
    };

    std::optional<Port> findPort(std::string_view name) const;

    std::string sys_;
    std::vector<Known> known_; // by place in the list
};

} // namespace vantrix
