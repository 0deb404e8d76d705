#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class Headline;
class Sparkline;

/// The load of the graphics processor.
class GPUCard : public Card {
  public:
    explicit GPUCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    const UserDefaults& defaults_;
    Headline* load_;
    Sparkline* history_;
};

} // namespace vantrix
