#pragma once

#include <vector>

#include <QRectF>

#include "views/theme_colors.h"
#include "views/view.h"

namespace vantrix {

/// Shares of a whole, one after the other on a track.
class SegmentedBar : public View {
  public:
    struct Segment {
        int id = 0;            ///< unique in its bar
        double fraction = 0.0; ///< of the full width
        ColorRole color = &ThemeColors::accent;

        bool operator==(const Segment&) const = default;
    };

    /// `name` is for assistive programs.
    SegmentedBar(const Theme& theme, const QString& name);

    void setSegments(const std::vector<Segment>& segments);

    /// The places of the segments in a bar `width` points wide; those too small to see are empty.
    std::vector<QRectF> places(double width) const;

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    std::optional<double> accessibleFraction() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<Segment> segments_;
};

} // namespace vantrix
