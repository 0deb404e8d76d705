#pragma once

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
};

/// A card of the popover: shows the latest readings each time it is told.
class Card : public MetricCard {
  public:
    using MetricCard::MetricCard;
    virtual void showReadings(const Readings& readings) = 0;
};

} // namespace vantrix
