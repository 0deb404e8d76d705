#include "linux/network/proc_net_route.h"

#include <array>

#include <linux/route.h>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "support/integer.h"

namespace vantrix {
namespace {

/// The first fields of a line; those that it lacks are empty.
template<std::size_t count>
std::array<std::string_view, count> firstFields(std::string_view line) {
    std::array<std::string_view, count> texts;
    Fields fields(line);
    for (auto& text : texts)
        text = fields.next();
    return texts;
}

bool isZero(std::string_view digits) {
    return !digits.empty() && digits.find_first_not_of('0') == std::string_view::npos;
}

struct Route {
    std::string_view interface;
    std::uint32_t metric = 0;
};

bool isUsable(std::optional<std::uint32_t> flags) {
    return flags && (*flags & RTF_UP) != 0 && (*flags & RTF_REJECT) == 0;
}

/// Interface, destination, gateway, flags, two counts, metric, mask.
std::optional<Route> ipv4Route(std::string_view line) {
    const auto fields = firstFields<8>(line);
    if (!isZero(fields[1]) || !isZero(fields[7]) || !isUsable(parseInteger<std::uint32_t>(fields[3], {}, 16)))
        return std::nullopt;
    return Route{fields[0], parseInteger<std::uint32_t>(fields[6]).value_or(0)};
}

/// Destination, its length, source, its length, gateway, metric, two counts, flags, interface.
std::optional<Route> ipv6Route(std::string_view line) {
    const auto fields = firstFields<10>(line);
    if (!isZero(fields[0]) || !isZero(fields[1]) || !isUsable(parseInteger<std::uint32_t>(fields[8], {}, 16)))
        return std::nullopt;
    return Route{fields[9], parseInteger<std::uint32_t>(fields[5], {}, 16).value_or(0)};
}

std::string_view bestInterface(std::string_view text, std::optional<Route> (*parse)(std::string_view)) {
    std::optional<Route> best;
    while (const auto line = takeLine(text)) {
        const auto route = parse(*line);
        if (route && isEntryName(route->interface) && (!best || route->metric < best->metric))
            best = route;
    }
    return best ? best->interface : std::string_view();
}

} // namespace

std::string_view parseDefaultRoute(std::string_view text) {
    return bestInterface(text, ipv4Route);
}

std::string_view parseDefaultIPv6Route(std::string_view text) {
    return bestInterface(text, ipv6Route);
}

bool ProcNetRoutes::refresh() {
    const auto ipv4 = ipv4_.file.read();
    const bool isChanged = put(ipv4_, parseDefaultRoute(ipv4.value_or("")));
    const auto ipv6 = ipv6_.file.read();
    if (put(ipv6_, parseDefaultIPv6Route(ipv6.value_or(""))) || isChanged)
        ++generation_;
    return ipv4 || ipv6;
}

bool ProcNetRoutes::put(List& list, std::string_view interface) {
    if (list.route.interface == interface)
        return false;
    list.route.interface = interface;
    return true;
}

const DefaultRoute* ProcNetRoutes::primary(Family family) const {
    const List& list = family == Family::ipv4 ? ipv4_ : ipv6_;
    return list.route.interface.empty() ? nullptr : &list.route;
}

} // namespace vantrix
