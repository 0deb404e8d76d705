#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class Headline;
class ProgramList;
class SegmentedBar;
class StatRow;
class TextLabel;

/// Memory in use: how much, what for, and whether it is scarce.
class MemoryCard : public Card {
  public:
    explicit MemoryCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    const UserDefaults& defaults_;
    Headline* used_;
    SegmentedBar* shares_;
    StatRow* app_;
    StatRow* wired_;
    StatRow* compressed_;
    StatRow* swap_;
    TextLabel* pressure_;
    ProgramList* programs_ = nullptr;
};

} // namespace vantrix
