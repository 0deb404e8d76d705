#include <cstdio>
#include <cstring>

#include <net/if.h>
#include <netdb.h>
#include <sys/mount.h>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;

namespace {

struct Entry {
    std::string name;
    sockaddr address{};
    if_data data{};
    ifaddrs entry{};
};

} // namespace

int getifaddrs(ifaddrs** list) {
    if (fails())
        return -1;
    const auto entries = std::make_shared<std::vector<Entry>>(mac().links.size());
    *list = nullptr;
    ifaddrs** next = list;
    for (std::size_t i = 0; i < entries->size(); ++i) {
        const LinkEntry& link = mac().links[i];
        Entry& to = entries->at(i);
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
        mac().lists[*list] = entries;
    return 0;
}

void freeifaddrs(ifaddrs* list) {
    if (mac().lists.erase(list) == 0)
        vantrix::fatalError("freeifaddrs of a list that is not held");
}

int getnameinfo(const sockaddr* address, socklen_t size, char* host, socklen_t hostSize, char*, socklen_t, int flags) {
    if (size != sizeof(sockaddr) || address->sa_family != AF_INET || flags != NI_NUMERICHOST || fails())
        return EAI_FAIL;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(address->sa_data + 2);
    std::snprintf(host, hostSize, "%d.%d.%d.%d", bytes[0], bytes[1], bytes[2], bytes[3]);
    return 0;
}

/// Of the machine's mounts, those that fit.
int getfsstat(struct statfs* list, int bytes, int flags) {
    if (flags != MNT_NOWAIT || fails())
        return -1;
    const auto& mounts = mac().mounts;
    if (!list)
        return static_cast<int>(mounts.size());
    const auto count = std::min(mounts.size(), static_cast<std::size_t>(bytes) / sizeof(struct statfs));
    for (std::size_t i = 0; i < count; ++i) {
        list[i].f_flags = mounts[i].flags;
        std::snprintf(list[i].f_mntonname, sizeof list[i].f_mntonname, "%s", mounts[i].point.c_str());
        std::snprintf(list[i].f_mntfromname, sizeof list[i].f_mntfromname, "%s", mounts[i].source.c_str());
    }
    return static_cast<int>(count);
}
