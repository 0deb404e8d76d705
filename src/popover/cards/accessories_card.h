#pragma once

#include <vector>

#include "accessories/accessory_battery.h"
#include "popover/cards/card.h"

namespace vantrix {

class StatRow;

/// The charge of every connected accessory that reports it.
class AccessoriesCard : public Card {
  public:
    explicit AccessoriesCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    void makeRows(const std::vector<AccessoryBattery>& accessories);

    QVBoxLayout* column_;
    std::vector<AccessoryBattery> shown_;
    std::vector<StatRow*> rows_; // one for each in `shown_`
};

} // namespace vantrix
