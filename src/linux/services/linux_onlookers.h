#pragma once

#include <memory>
#include <vector>

#include "linux/services/blank_teller.h"
#include "linux/services/session_lock.h"
#include "linux/services/x11_blanking.h"
#include "platform/onlookers.h"

namespace vantrix {

/// Nobody looks while any of these says so: logind, the desktop's screen saver, the compositor, the X server.
class LinuxOnlookers : public Onlookers {
    Q_OBJECT
  public:
    LinuxOnlookers(const std::shared_ptr<BusLink>& sessionBus, const std::shared_ptr<BusLink>& systemBus);

    bool somebodyLooks() const override { return somebodyLooks_; }

  private:
    void announce();

    X11Blanking screen_;
    SessionLock lock_;
    std::vector<std::unique_ptr<BlankTeller>> tellers_;
    bool somebodyLooks_;
};

} // namespace vantrix
