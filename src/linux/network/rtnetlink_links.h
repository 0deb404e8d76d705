#pragma once

#include <string>
#include <vector>

#include "linux/kernel/netlink_socket.h"
#include "linux/network/link_states.h"
#include "linux/network/rtnetlink_messages.h"

namespace vantrix {

/// The links of this network namespace, as told by rtnetlink messages.
class LinkTable {
  public:
    /// `sys` is the root under which it is looked up, once per link and name, whether a link is hardware.
    explicit LinkTable(std::string sys) : sys_(std::move(sys)) {}

    void put(const LinkMessage& message);
    void remove(int index);

    /// Around a full list: what was not put in between is gone.
    void beginList();
    void endList();

    /// All zero for a link that was not told of.
    LinkState state(std::string_view name, std::size_t place);

  private:
    struct Entry {
        int index = 0;
        std::string name;
        LinkState state;
        bool isListed = false;
    };

    std::vector<Entry>::iterator find(int index);

    std::string sys_;
    std::vector<Entry> entries_; // takes on the order in which states are asked for
};

/// States of links from a subscription to the kernel's news, so that nothing is asked on a pass without news.
class RtnetlinkLinks : public LinkStates {
  public:
    explicit RtnetlinkLinks(std::string sys);

    bool refresh() override;
    LinkState state(std::string_view name, std::size_t place) override { return table_.state(name, place); }

  private:
    bool takeNews();
    bool askForList();
    bool readList();
    bool applyList(std::string_view datagram, bool& isComplete);
    void apply(const LinkMessage& message);

    LinkTable table_;
    NetlinkSocket socket_;
    std::uint32_t sequence_ = 0;
    bool isListDue_ = true;
    bool hasList_ = false;
};

} // namespace vantrix
