#pragma once

#include <optional>
#include <span>
#include <vector>

#include "views/theme_colors.h"
#include "views/view.h"

class QPainterPath;

namespace vantrix {

/// A history as a line over a soft area. The newest value stands at the right edge; sixty fill the width, and fewer
/// leave the rest empty. Tells the value and the age of the one under the pointer.
class Sparkline : public View {
  public:
    /// The scale ends at `maximum`, or at the largest value but no lower than `minimumScale`.
    struct Scale {
        std::optional<double> maximum;
        double minimumScale = 1.0;
    };

    using Text = QString (*)(double);

    /// `name` is for assistive programs; `text` writes a value out.
    Sparkline(const Theme& theme, const QString& name, ColorRole color, const Scale& scale, Text text);

    /// Oldest first, `interval` seconds apart.
    void setValues(std::span<const double> values, double interval);
    void setColor(ColorRole color);
    void setText(Text text);

    /// The value at the upper edge; never negative.
    double top() const;

    /// "2.4 MB/s · 12 s ago" for the value nearest to `x`; empty where there is none.
    QString textAt(double x) const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    /// The name, and the last, the smallest and the largest value.
    QString accessibleText() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    double step() const;
    std::vector<QPointF> points() const;
    std::optional<std::size_t> nearest(double x) const;
    void paintPointed(QPainter& painter, const QPointF& mark) const;
    void tell();

    ColorRole color_;
    Scale scale_;
    Text text_;
    double interval_ = 0.0;
    std::vector<double> values_;
    std::optional<QPoint> pointer_; ///< while it is over the graph
};

/// A smooth curve through `points`, each further right than the one before. Between two points it stays within their
/// heights.
QPainterPath monotoneCurve(std::span<const QPointF> points);

} // namespace vantrix
