#pragma once

#include <QTimer>

#include "support/repeating_timer.h"

namespace vantrix {

class QtRepeatingTimer final : public RepeatingTimer {
  public:
    QtRepeatingTimer();
    void schedule(double period, double tolerance, std::function<void()> fire) override;

  private:
    QTimer timer_;
    std::function<void()> fire_;
};

} // namespace vantrix
