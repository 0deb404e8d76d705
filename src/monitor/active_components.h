#pragma once

#include <array>
#include <cstddef>

#include "sensors/sensors_sample.h"

namespace vantrix {

/// Tells the components that draw power from those that the chip keeps switched off, or lacks although it has a counter
/// for them.
class ActiveComponents {
  public:
    /// Called once a pass. Of `powers`, in watts, those of components that drew more than 0.05 W now or in one of the
    /// `historyLength - 1` passes before.
    ComponentPower among(const ComponentPower& powers);

  private:
    std::array<std::size_t, 4> passesLeft_{}; ///< until a component that draws nothing any more is left out
};

} // namespace vantrix
