#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class Headline;
class RateColumn;
class SegmentedBar;

/// Free space on the system's volume, and the traffic of all disks.
class DiskCard : public Card {
  public:
    explicit DiskCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    const UserDefaults& defaults_;
    Headline* free_;
    SegmentedBar* used_;
    RateColumn* read_;
    RateColumn* write_;
};

} // namespace vantrix
