#pragma once

#include <array>
#include <functional>
#include <memory>

#include "popover/cards/card.h"
#include "popover/cards/steady_programs.h"
#include "samplers/process_sampler.h"
#include "support/units.h"

namespace vantrix {

class DisclosureButton;
class ProgramRow;

/// The programs behind a card's reading, below it, and the button in its header that unfolds them. Processes are looked
/// at only while the rows are on the screen.
class ProgramList : public View {
  public:
    struct Kind {
        PopoverCard card;
        std::string_view name; ///< of the button, in English
        std::vector<ProgramShare> ProcessSample::*list;
        SteadyPrograms::Rank rank;
        QString (*text)(const ProgramShare&, const Units&);
    };

    /// Puts itself at the end of `card`.
    ProgramList(const CardContext& context, const Kind& kind, MetricCard& card);

    /// `whole`: the rank that fills a bar.
    void showPrograms(const ProcessSample& processes, double whole);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    CardContext context_;
    Kind kind_;
    SteadyPrograms programs_;
    DisclosureButton* button_;
    std::array<ProgramRow*, ProcessSample::listLength> rows_{};
    std::shared_ptr<void> watch_; // while the rows are on the screen
};

} // namespace vantrix
