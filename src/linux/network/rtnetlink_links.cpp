#include "linux/network/rtnetlink_links.h"

#include <algorithm>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>

#include "linux/network/sysfs_links.h"

namespace vantrix {
namespace {

constexpr int datagramsPerPass = 1000; // a storm of news goes on in the next pass

} // namespace

void LinkTable::put(const LinkMessage& message) {
    auto entry = find(message.index);
    if (entry == entries_.end()) {
        if (message.name.empty())
            return;
        entry = entries_.insert(entry, Entry{message.index, {}, {}, true});
    }
    if (!message.name.empty() && entry->name != message.name) {
        entry->name = message.name;
        entry->state.isHardware = isHardwareLink(sys_, message.name);
    }
    entry->state.flags = message.flags;
    entry->isListed = true;
}

void LinkTable::remove(int index) {
    const auto entry = find(index);
    if (entry != entries_.end())
        entries_.erase(entry);
}

void LinkTable::beginList() {
    for (Entry& entry : entries_)
        entry.isListed = false;
}

void LinkTable::endList() {
    std::erase_if(entries_, [](const Entry& entry) { return !entry.isListed; });
}

LinkState LinkTable::state(std::string_view name, std::size_t place) {
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

std::vector<LinkTable::Entry>::iterator LinkTable::find(int index) {
    return std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.index == index; });
}

RtnetlinkLinks::RtnetlinkLinks(std::string sys) : table_(std::move(sys)), socket_(NETLINK_ROUTE, RTMGRP_LINK) {}

bool RtnetlinkLinks::refresh() {
    if (!socket_.open() || !takeNews())
        return false;
    if (isListDue_ && readList()) {
        isListDue_ = false;
        hasList_ = true;
    }
    return hasList_;
}

bool RtnetlinkLinks::takeNews() {
    std::string_view datagram;
    for (int i = 0; i < datagramsPerPass; ++i) {
        const auto received = socket_.receive(datagram);
        if (received == NetlinkChannel::Received::failed)
            return false;
        if (received == NetlinkChannel::Received::nothing)
            break;
        if (received == NetlinkChannel::Received::lost) {
            isListDue_ = true;
            continue;
        }
        while (const auto message = takeLinkMessage(datagram))
            apply(*message);
    }
    return true;
}

bool RtnetlinkLinks::askForList() {
    struct {
        nlmsghdr header;
        ifinfomsg link;
        rtattr attribute;
        std::uint32_t filter;
    } question{};
    question.header.nlmsg_len = sizeof question;
    question.header.nlmsg_type = RTM_GETLINK;
    question.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    question.header.nlmsg_seq = ++sequence_;
    question.attribute.rta_len = RTA_LENGTH(sizeof question.filter);
    question.attribute.rta_type = IFLA_EXT_MASK;
    question.filter = RTEXT_FILTER_SKIP_STATS;
    return socket_.send({reinterpret_cast<const char*>(&question), sizeof question});
}

bool RtnetlinkLinks::readList() {
    if (!askForList())
        return false;
    table_.beginList();
    std::string_view datagram;
    bool isComplete = false;
    // The kernel writes the answer while it is read, so it never has to be waited for.
    for (int i = 0; i < datagramsPerPass && !isComplete; ++i) {
        if (socket_.receive(datagram) != NetlinkChannel::Received::datagram || !applyList(datagram, isComplete))
            return false;
    }
    if (isComplete)
        table_.endList();
    return isComplete;
}

bool RtnetlinkLinks::applyList(std::string_view datagram, bool& isComplete) {
    while (const auto message = takeLinkMessage(datagram)) {
        const bool isAnswer = message->sequence == sequence_;
        if (isAnswer && (message->isInterrupted || message->kind == LinkMessage::Kind::failed))
            return false;
        if (isAnswer && message->kind == LinkMessage::Kind::done)
            isComplete = true;
        apply(*message);
    }
    return true;
}

void RtnetlinkLinks::apply(const LinkMessage& message) {
    if (message.kind == LinkMessage::Kind::link)
        table_.put(message);
    else if (message.kind == LinkMessage::Kind::removed)
        table_.remove(message.index);
}

} // namespace vantrix
