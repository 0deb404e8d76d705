#include <cstdio>
#include <cstring>
#include <list>

#include <net/if.h>
#include <netdb.h>

#include "macos/simulated/machine.h"
#include "support/checked.h"

namespace vantrix::simulated {

/// What getifaddrs gave away.
struct LinkList {
    struct Entry {
        std::string name;
        sockaddr address{};
        if_data data{};
        ifaddrs entry{};
    };

    std::list<Entry> entries; // none of them moves
};

} // namespace vantrix::simulated

using namespace vantrix::simulated;

int getifaddrs(ifaddrs** list) {
    if (fails("getifaddrs"))
        return -1;
    *list = nullptr;
    auto* const made = new LinkList;
    ifaddrs** next = list;
    for (const LinkEntry& link : mac().links) {
        auto& to = made->entries.emplace_back();
        to.name = link.name;
        to.address = {sizeof(sockaddr), link.family, {}};
        std::memcpy(to.address.sa_data + 2, link.address.data(), link.address.size());
        to.data.ifi_ibytes = link.received;
        to.data.ifi_obytes = link.sent;
        to.entry.ifa_name = to.name.data();
        to.entry.ifa_flags = link.flags;
        to.entry.ifa_addr = link.family == 0 ? nullptr : &to.address;
        to.entry.ifa_data = link.family == 0 ? nullptr : &to.data; // of other families it is something else
        *next = &to.entry;
        next = &to.entry.ifa_next;
    }
    if (*list)
        mac().lists[*list] = made;
    else
        delete made;
    return 0;
}

void freeifaddrs(ifaddrs* list) {
    const auto found = mac().lists.find(list);
    if (found == mac().lists.end())
        vantrix::fatalError("freeifaddrs of a list that is not held");
    delete found->second;
    mac().lists.erase(found);
}

int getnameinfo(const sockaddr* address, socklen_t size, char* host, socklen_t hostSize, char*, socklen_t, int flags) {
    if (size != sizeof(sockaddr) || flags != NI_NUMERICHOST || fails("getnameinfo"))
        return EAI_FAIL;
    if (address->sa_family == AF_INET6)
        return std::snprintf(host, hostSize, "fe80::1") > 0 ? 0 : EAI_FAIL;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(address->sa_data + 2);
    std::snprintf(host, hostSize, "%d.%d.%d.%d", bytes[0], bytes[1], bytes[2], bytes[3]);
    return 0;
}
