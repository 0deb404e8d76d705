#include "macos/network/link_records.h"

#include <sys/socket.h>

#include <net/if.h>

#include "macos/network/interface_addresses.h"

namespace vantrix {
namespace {

std::optional<NetworkSampler::Counters> countersOf(const ifaddrs& entry) {
    if (!entry.ifa_addr || entry.ifa_addr->sa_family != AF_LINK || !entry.ifa_data)
        return std::nullopt;
    const auto& data = *static_cast<const if_data*>(entry.ifa_data);
    return NetworkSampler::Counters{.received = data.ifi_ibytes, .sent = data.ifi_obytes};
}

} // namespace

bool LinkRecords::read(std::vector<NetworkSampler::Link>& links) {
    const InterfaceAddresses addresses;
    std::size_t count = 0;
    for (const ifaddrs* entry = addresses.first(); entry; entry = entry->ifa_next) {
        if (count == links.size())
            links.emplace_back();
        NetworkSampler::Link& link = links[count++]; // reused, with the memory of its name
        link.name = entry->ifa_name;
        link.flags = entry->ifa_flags;
        link.counters = countersOf(*entry);
    }
    links.resize(count);
    return addresses.first() != nullptr;
}

} // namespace vantrix
