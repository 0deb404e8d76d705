#pragma once

#include "popover/cards/card.h"

namespace vantrix {

class LinkButton;
class RateColumn;
class StatRow;
struct NetworkInfo;

/// Traffic in both directions, and what is known of the connection.
class NetworkCard : public Card {
  public:
    explicit NetworkCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    void showConnection(const NetworkInfo& info);

    const UserDefaults& defaults_;
    RateColumn* download_;
    RateColumn* upload_;
    QWidget* connection_;
    StatRow* name_;
    LinkButton* nameWithheld_;
    StatRow* signal_;
    StatRow* signalToNoise_;
    StatRow* linkSpeed_;
    StatRow* interface_;
    StatRow* address_;
};

} // namespace vantrix
