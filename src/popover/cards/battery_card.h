#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class Headline;
class SegmentedBar;
class StatRow;
class TextLabel;
struct BatterySample;

/// The internal battery: its charge, what it is doing, and how well it has kept.
class BatteryCard : public Card {
  public:
    explicit BatteryCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    void showBattery(const BatterySample& battery);

    const UserDefaults& defaults_;
    Headline* charge_;
    SegmentedBar* bar_;
    TextLabel* time_;
    StatRow* capacity_;
    StatRow* cycles_;
    StatRow* temperature_;
    StatRow* power_;
};

} // namespace vantrix
