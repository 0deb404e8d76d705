#pragma once

#include <functional>

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
};

/// A card of the popover.
class Card : public MetricCard {
  public:
    using MetricCard::MetricCard;
    virtual void showReadings(const Readings& readings) = 0;
};

} // namespace vantrix
