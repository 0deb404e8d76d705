#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "popover/reading_text.h"
#include "views/theme_colors.h"
#include "views/view.h"

class QHBoxLayout;

namespace vantrix {

class Sparkline;
class TextLabel;

/// One direction of a transfer: its name, its rate now and its history.
class RateColumn : public View {
  public:
    struct Style {
        QString label;
        QString historyName;     ///< for assistive programs
        std::string_view symbol; ///< empty: none
        ColorRole color = nullptr;
        double minimumScale = 1.0; ///< bytes per second; the chart never shows less, so that an idle line stays flat
    };

    RateColumn(const Theme& theme, const Style& style);

    /// Bytes per second, written by `text`; the history's are `interval` seconds apart. An absent rate is a dash.
    void setRate(std::optional<double> rate, std::span<const double> history, double interval,
                 RateText text = rateText);

    QString accessibleText() const override;

  private:
    TextLabel* rate_;
    Sparkline* history_;
    QString label_;
};

/// Two columns of equal width.
QHBoxLayout* sideBySide(RateColumn* first, RateColumn* second);

} // namespace vantrix
