#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class CoreBars;
class ProgramList;
class RingGauge;
class StatRow;

/// The processor's load: in total, by kind and by core.
class CPUCard : public Card {
  public:
    explicit CPUCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    RingGauge* total_;
    StatRow* user_;
    StatRow* system_;
    StatRow* idle_;
    CoreBars* cores_;
    ProgramList* programs_ = nullptr;
};

} // namespace vantrix
