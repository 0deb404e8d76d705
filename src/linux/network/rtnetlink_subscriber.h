#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "linux/kernel/netlink_records.h"
#include "linux/kernel/netlink_socket.h"

namespace vantrix {

class RtnetlinkSubscriber;

/// A copy of some of the kernel's lists of links, addresses and routes. It follows the subscriber's news for as long as
/// it lives.
class RtnetlinkTable {
  public:
    struct List {
        std::uint16_t question = 0; ///< RTM_GET…
        unsigned char family = 0;   ///< AF_…
    };

    explicit RtnetlinkTable(std::shared_ptr<RtnetlinkSubscriber> subscriber);
    virtual ~RtnetlinkTable();
    RtnetlinkTable(const RtnetlinkTable&) = delete;
    RtnetlinkTable& operator=(const RtnetlinkTable&) = delete;

    /// The lists that it is a copy of.
    virtual std::span<const List> lists() const = 0;

    /// Called around the messages of all lists; the end does not come when reading them fails. They are not whole when
    /// something changed while they were made, and are then read anew.
    virtual void beginLists() = 0;
    virtual void takeListed(const NetlinkMessage& message) = 0;
    virtual void endLists(bool areWhole) = 0;

    /// Takes news of whatever sort. True when the lists have to be read anew because of it.
    virtual bool takeNews(const NetlinkMessage& message) = 0;

  protected:
    /// To be called once on each pass; see RtnetlinkSubscriber::refresh.
    bool refreshTable();

  private:
    std::shared_ptr<RtnetlinkSubscriber> subscriber_;
};

/// Subscribes to the kernel's news of links, addresses and routes in this network namespace. On a pass without news
/// nothing is asked.
class RtnetlinkSubscriber {
  public:
    RtnetlinkSubscriber();
    /// `channel` talks to NETLINK_ROUTE.
    explicit RtnetlinkSubscriber(std::unique_ptr<NetlinkChannel> channel) : channel_(std::move(channel)) {}

    /// Hands the news to the tables and reads the lists that are due. False while the kernel cannot be heard; the
    /// tables may then be out of date. Each table calls it once on a pass, and the first of them serves all.
    bool refresh(const RtnetlinkTable& caller);

  private:
    friend class RtnetlinkTable;

    struct Member {
        RtnetlinkTable* table = nullptr;
        bool areListsDue = true;
        bool isServed = false; ///< by another's call since its own last one
    };
    enum class Answer { unfinished, complete, refused };

    bool renewAll();
    bool takeNews();
    void handOut(const NetlinkMessage& message);
    bool readLists(Member& member);
    bool readList(RtnetlinkTable& table, RtnetlinkTable::List list);
    bool ask(RtnetlinkTable::List list);
    Answer takeAnswer(RtnetlinkTable& table, std::string_view datagram);
    void makeAllDue();
    void startOver();

    std::unique_ptr<NetlinkChannel> channel_;
    std::vector<Member> members_;
    std::uint32_t sequence_ = 0;
    bool isHeard_ = false;
    bool isInterrupted_ = false; // something changed while the lists were made
};

} // namespace vantrix
