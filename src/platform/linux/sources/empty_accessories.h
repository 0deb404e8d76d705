#pragma once

#include "accessories/accessories_sampler.h"

namespace vantrix {

/// A scan that finds nothing.
class EmptyAccessories : public AccessoriesSampler {
  public:
    Scan scan() override { return {}; }
};

} // namespace vantrix
