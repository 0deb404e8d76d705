#pragma once

#include <vector>

#include "samplers/process_sampler.h"

namespace vantrix {

/// Keeps programs in the places where the eye has found them: one goes above another only when it was larger in two
/// passes running. A newcomer takes the place of one that is gone.
class SteadyPrograms {
  public:
    using Rank = double (*)(const ProgramShare&);

    explicit SteadyPrograms(Rank rank) : rank_(rank) {}

    /// The programs of `latest` with their values, in the order to be shown. `latest`: those of one pass, the largest
    /// first.
    std::vector<ProgramShare> arranged(const std::vector<ProgramShare>& latest);

  private:
    struct Place {
        ProgramShare program;
        double before = 0.0; // its rank in the pass before; 0 when it was not there
    };

    Rank rank_;
    std::vector<Place> places_;
};

} // namespace vantrix
