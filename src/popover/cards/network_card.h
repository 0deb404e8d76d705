#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class RateColumn;
class StatRow;
class TextLabel;
struct NetworkInfo;

/// Traffic in both directions, and what is known of the connection.
class NetworkCard : public Card {
  public:
    explicit NetworkCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    void showConnection(const NetworkInfo& info);

    RateColumn* download_;
    RateColumn* upload_;
    QWidget* connection_;
    StatRow* name_;
    TextLabel* nameWithheld_;
    StatRow* signal_;
    StatRow* signalToNoise_;
    StatRow* linkSpeed_;
    StatRow* interface_;
    StatRow* address_;
};

} // namespace vantrix
