#pragma once

#include "linux/kernel/kernel_file.h"
#include "linux/network/default_routes.h"

namespace vantrix {

/// The interface of the default route of lowest metric in the text of /proc/net/route; empty without any.
std::string_view parseDefaultRoute(std::string_view text);
/// The same of /proc/net/ipv6_route.
std::string_view parseDefaultIPv6Route(std::string_view text);

/// Default routes from <net>/route and <net>/ipv6_route, for machines whose network namespace is out of reach. Their
/// addresses and link numbers are not known.
class ProcNetRoutes : public DefaultRoutes {
  public:
    explicit ProcNetRoutes(const std::string& net) : ipv4_(net + "/route"), ipv6_(net + "/ipv6_route") {}

    bool refresh() override;
    std::uint64_t generation() const override { return generation_; }
    const DefaultRoute* primary(Family family) const override;

  private:
    struct List {
        explicit List(const std::string& path) : file(path, KernelFile::Kind::records) {}

        KernelFile file;
        DefaultRoute route; // without an interface when there is none
    };

    bool put(List& list, std::string_view interface);

    List ipv4_;
    List ipv6_;
    std::uint64_t generation_ = 1;
};

} // namespace vantrix
