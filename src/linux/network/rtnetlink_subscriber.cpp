#include "linux/network/rtnetlink_subscriber.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace vantrix {
namespace {

using Received = NetlinkChannel::Received;

constexpr int datagramsPerPass = 1000; // a storm of news goes on in the next pass
constexpr int attemptsPerPass = 3;     // at lists that change while they are read

} // namespace

RtnetlinkTable::RtnetlinkTable(std::shared_ptr<RtnetlinkSubscriber> subscriber) : subscriber_(std::move(subscriber)) {
    subscriber_->members_.push_back({this});
}

RtnetlinkTable::~RtnetlinkTable() {
    std::erase_if(subscriber_->members_, [this](const auto& member) { return member.table == this; });
}

RtnetlinkSubscriber::RtnetlinkSubscriber()
    : RtnetlinkSubscriber(std::make_unique<NetlinkSocket>(NETLINK_ROUTE, RTMGRP_LINK | RTMGRP_IPV4_IFADDR |
                                                                             RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE)) {}

bool RtnetlinkTable::refreshTable() {
    return subscriber_->refresh(*this);
}

bool RtnetlinkSubscriber::refresh(const RtnetlinkTable& caller) {
    const auto own =
        std::find_if(members_.begin(), members_.end(), [&](const Member& member) { return member.table == &caller; });
    if (std::exchange(own->isServed, false))
        return isHeard_;
    for (Member& member : members_)
        member.isServed = member.table != &caller;
    isHeard_ = renewAll();
    return isHeard_;
}

bool RtnetlinkSubscriber::renewAll() {
    if (!channel_->open() || !takeNews()) {
        startOver();
        return false;
    }
    for (Member& member : members_) {
        for (int attempt = 0; member.areListsDue && attempt < attemptsPerPass; ++attempt) {
            if (!readLists(member)) {
                // What the kernel has begun to answer would be in the way of the next question.
                startOver();
                return true;
            }
        }
    }
    return true;
}

bool RtnetlinkSubscriber::takeNews() {
    std::string_view datagram;
    for (int i = 0; i < datagramsPerPass; ++i) {
        const auto received = channel_->receive(datagram);
        if (received == Received::failed)
            return false;
        if (received == Received::nothing)
            break;
        if (received == Received::lost) {
            makeAllDue();
            continue;
        }
        while (const auto message = takeNetlinkMessage(datagram))
            handOut(*message);
    }
    return true;
}

void RtnetlinkSubscriber::handOut(const NetlinkMessage& message) {
    if ((message.header.nlmsg_flags & NLM_F_MULTI) != 0)
        return; // part of somebody's list
    for (Member& member : members_)
        member.areListsDue = member.table->takeNews(message) || member.areListsDue;
}

bool RtnetlinkSubscriber::readLists(Member& member) {
    member.areListsDue = false; // unless news come in between
    isInterrupted_ = false;
    member.table->beginLists();
    for (const RtnetlinkTable::List list : member.table->lists()) {
        if (!readList(*member.table, list))
            return false;
    }
    member.table->endLists(!isInterrupted_);
    member.areListsDue = member.areListsDue || isInterrupted_;
    return true;
}

bool RtnetlinkSubscriber::readList(RtnetlinkTable& table, RtnetlinkTable::List list) {
    if (!ask(list))
        return false;
    std::string_view datagram;
    // The kernel writes the answer while it is read, so it never has to be waited for.
    for (int i = 0; i < datagramsPerPass; ++i) {
        const auto received = channel_->receive(datagram);
        if (received == Received::lost) {
            makeAllDue();
            continue;
        }
        if (received != Received::datagram)
            return false;
        const auto answer = takeAnswer(table, datagram);
        if (answer != Answer::unfinished)
            return answer == Answer::complete;
    }
    return false;
}

bool RtnetlinkSubscriber::ask(RtnetlinkTable::List list) {
    struct {
        nlmsghdr header;
        ifinfomsg body; // those of other lists begin with the family, too, and are no longer
        rtattr attribute;
        std::uint32_t filter;
    } question{};
    // Without their statistics, links are told of in a fraction of the bytes.
    question.header.nlmsg_len = list.question == RTM_GETLINK ? sizeof question : sizeof(nlmsghdr) + sizeof(rtmsg);
    question.header.nlmsg_type = list.question;
    question.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    question.header.nlmsg_seq = ++sequence_;
    question.body.ifi_family = list.family;
    question.attribute.rta_len = RTA_LENGTH(sizeof question.filter);
    question.attribute.rta_type = IFLA_EXT_MASK;
    question.filter = RTEXT_FILTER_SKIP_STATS;
    return channel_->send({reinterpret_cast<const char*>(&question), question.header.nlmsg_len});
}

RtnetlinkSubscriber::Answer RtnetlinkSubscriber::takeAnswer(RtnetlinkTable& table, std::string_view datagram) {
    auto answer = Answer::unfinished;
    while (const auto message = takeNetlinkMessage(datagram)) {
        const nlmsghdr& header = message->header;
        const bool isRefusal = header.nlmsg_type == NLMSG_ERROR;
        if (header.nlmsg_seq != sequence_ || ((header.nlmsg_flags & NLM_F_MULTI) == 0 && !isRefusal)) {
            handOut(*message);
            continue;
        }
        isInterrupted_ = isInterrupted_ || (header.nlmsg_flags & NLM_F_DUMP_INTR) != 0;
        if (header.nlmsg_type == NLMSG_DONE) {
            answer = Answer::complete;
        } else if (isRefusal) {
            // A kernel that does not know such a list, as one without IPv6, has nothing to put on it.
            const int error = errorNumber(message->body);
            answer = error == EOPNOTSUPP || error == EAFNOSUPPORT ? Answer::complete : Answer::refused;
        } else {
            table.takeListed(*message);
        }
    }
    return answer;
}

void RtnetlinkSubscriber::makeAllDue() {
    for (Member& member : members_)
        member.areListsDue = true;
}

/// The next pass begins a new conversation.
void RtnetlinkSubscriber::startOver() {
    channel_->close();
    makeAllDue();
}

} // namespace vantrix
