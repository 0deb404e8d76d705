#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/kernel_file.h"
#include "linux/network/link_states.h"

namespace vantrix {

/// True when a device stands behind the interface: <sys>/class/net/<name>/device exists.
bool isHardwareLink(const std::string& sys, std::string_view name);

/// What <sys>/class/net/<name> tells of a link, but for its flags.
LinkState readLink(const std::string& sys, std::string_view name);

/// A number as sysfs writes flags: "0x1003".
std::optional<std::uint32_t> parseLinkFlags(std::string_view text);

/// States of links from <sys>/class/net, for machines whose network namespace is out of reach. Only the files of
/// hardware ports are read.
class SysfsLinks : public LinkStates {
  public:
    explicit SysfsLinks(std::string sys) : sys_(std::move(sys)) {}

    /// How often it is made sure that links are those they were, and have the masters they had. A port is made sure of
    /// on every pass.
    static constexpr int passesPerLook = 5;

    bool refresh() override;
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
        std::string folder;
        std::string master;
        std::uint64_t number = 0;       ///< of the folder
        std::uint64_t masterNumber = 0; ///< of its master's folder
        LinkState state;
        std::optional<Port> port; ///< only of hardware
    };

    bool isOutdated(const Known& known) const;
    void lookUp(std::string_view name, Known& known) const;

    std::string sys_;
    std::vector<Known> known_; // by place in the list
    int passes_ = 0;           // since the last look
};

} // namespace vantrix
