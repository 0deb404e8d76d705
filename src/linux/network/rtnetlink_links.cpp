#include "linux/network/rtnetlink_links.h"

#include <algorithm>

#include <sys/socket.h>

#include "linux/network/link_messages.h"
#include "linux/network/sysfs_links.h"

namespace vantrix {

LinkState RtnetlinkLinks::state(std::string_view name, std::size_t place) {
    if (place < entries_.size() && entries_[place].name == name)
        return entries_[place].state;
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& other) { return other.name == name; });
    if (entry == entries_.end())
        return {};
    const LinkState state = entry->state;
    if (place < entries_.size())
        std::swap(*entry, entries_[place]);
    return state;
}

std::span<const RtnetlinkTable::List> RtnetlinkLinks::lists() const {
    static constexpr List all[] = {{RTM_GETLINK, AF_UNSPEC}};
    return all;
}

void RtnetlinkLinks::beginLists() {
    for (Entry& entry : entries_)
        entry.isListed = false;
}

void RtnetlinkLinks::endLists(bool areWhole) {
    hasList_ = true;
    if (areWhole)
        std::erase_if(entries_, [](const Entry& entry) { return !entry.isListed; });
}

bool RtnetlinkLinks::takeNews(const NetlinkMessage& message) {
    const auto link = parseLinkMessage(message);
    if (!link)
        return false;
    auto entry = find(link->index);
    const bool isKnown = entry != entries_.end();
    if (link->isGone) {
        if (isKnown)
            entries_.erase(entry);
        return false;
    }
    if (!isKnown) {
        if (link->name.empty())
            return false;
        entry = entries_.insert(entry, Entry{{}, {}, true});
    }
    if (!link->name.empty() && entry->name != link->name) {
        entry->name = link->name;
        entry->state.isHardware = isHardwareLink(sys_, link->name);
    }
    entry->state.flags = link->flags;
    entry->state.type = link->type;
    entry->state.index = link->index;
    entry->state.master = link->master;
    entry->state.lower = link->lower;
    entry->isListed = true;
    return false;
}

std::vector<RtnetlinkLinks::Entry>::iterator RtnetlinkLinks::find(int index) {
    return std::find_if(entries_.begin(), entries_.end(),
                        [&](const Entry& entry) { return entry.state.index == index; });
}

} // namespace vantrix
