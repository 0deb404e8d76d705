#pragma once

#include <string>
#include <vector>

#include "linux/network/link_states.h"
#include "linux/network/rtnetlink_subscriber.h"

namespace vantrix {

/// The links of this network namespace.
class RtnetlinkLinks : public LinkStates, private RtnetlinkTable {
  public:
    /// Whether a link is hardware is looked up under the root `sys`, once per link and name.
    RtnetlinkLinks(std::shared_ptr<RtnetlinkSubscriber> subscriber, std::string sys)
        : RtnetlinkTable(std::move(subscriber)), sys_(std::move(sys)) {}

    bool refresh() override { return refreshTable() && hasList_; }
    LinkState state(std::string_view name, std::size_t place) override;

  private:
    struct Entry {
        std::string name;
        LinkState state;
        bool isListed = false;
    };

    std::span<const List> lists() const override;
    void beginLists() override;
    void takeListed(const NetlinkMessage& message) override { takeNews(message); }
    void endLists(bool areWhole) override;
    bool takeNews(const NetlinkMessage& message) override;
    std::vector<Entry>::iterator find(int index);

    std::string sys_;
    std::vector<Entry> entries_; // takes on the order in which states are asked for
    bool hasList_ = false;
};

} // namespace vantrix
