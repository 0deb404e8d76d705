#pragma once

#include <functional>
#include <memory>

#include "menubar/display_choices.h"
#include "popover/charts/metric_card.h"

namespace vantrix {

class ProcessorDescription;
class UserDefaults;
struct Readings;

/// What cards are made from; all outlive them.
struct CardContext {
    const Theme& theme;
    const UserDefaults& defaults;
    const ProcessorDescription& processor;
    /// Asks for the permission without which the system withholds the name of a Wi-Fi network.
    std::function<void()> requestLocationAccess = [] {};
    /// Has processes looked at for as long as the result lives. Null where the system tells nothing of them.
    std::function<std::shared_ptr<void>()> watchPrograms = {};
    /// Keeps whether the programs of a card are unfolded.
    std::function<void(PopoverCard card, bool isUnfolded)> keepUnfolded = [](PopoverCard, bool) {};
};

/// A card of the popover.
class Card : public MetricCard {
  public:
    using MetricCard::MetricCard;
    virtual void showReadings(const Readings& readings) = 0;
};

} // namespace vantrix
