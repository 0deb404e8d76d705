#pragma once

#include <optional>
#include <span>
#include <vector>

#include "views/theme_colors.h"
#include "views/view.h"

class QPainterPath;

namespace vantrix {

/// A history as a line over a soft area. Sixty values fill the width; fewer start at the left and leave the rest empty.
class Sparkline : public View {
  public:
    /// The scale ends at `maximum`, or at the largest value but no lower than `minimumScale`.
    struct Scale {
        std::optional<double> maximum;
        double minimumScale = 1.0;
    };

    /// `name` is for assistive programs.
    Sparkline(const Theme& theme, const QString& name, ColorRole color, const Scale& scale);

    /// Oldest first.
    void setValues(std::span<const double> values);

    /// The value at the upper edge; never negative.
    double top() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QPointF> points() const;

    ColorRole color_;
    Scale scale_;
    std::vector<double> values_;
};

/// A smooth curve through `points`, each further right than the one before. Between two points it stays within their
/// heights.
QPainterPath monotoneCurve(std::span<const QPointF> points);

} // namespace vantrix
