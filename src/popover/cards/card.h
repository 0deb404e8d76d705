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
    /// Asks for what shows the name of a Wi-Fi network that the system withholds.
    std::function<void()> requestLocationAccess = [] {};
};

/// A card of the popover: shows the latest readings each time it is told.
class Card : public MetricCard {
  public:
    using MetricCard::MetricCard;
    virtual void showReadings(const Readings& readings) = 0;
};

} // namespace vantrix
