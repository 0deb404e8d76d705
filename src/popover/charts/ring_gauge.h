#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>

#include "views/spring.h"
#include "views/view.h"

namespace vantrix {

class UserDefaults;

/// A share of a whole as an arc that starts at the top and runs clockwise, with its percentage inside. The arc springs
/// to a new share; nothing runs while it is at rest or cannot be seen.
class RingGauge : public View {
  public:
    /// `name` is for assistive programs; `defaults` outlives the view.
    RingGauge(const Theme& theme, const UserDefaults& defaults, const QString& name, double lineWidth);

    /// Clamped to 0 to 1; NaN counts as 0.
    void setFraction(double fraction);

    /// The percentage.
    QString text() const;
    bool isAnimating() const { return timer_.isActive(); }
    /// The share that the arc shows right now, perhaps still on its way.
    double shownFraction() const { return spring_.value(); }

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    std::optional<double> accessibleFraction() const override { return fraction_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void paintText(QPainter& painter, const QColor& color) const;

    const UserDefaults& defaults_;
    double lineWidth_;
    double fraction_ = 0.0;
    Spring spring_;
    double painted_ = 0.0; ///< the share that was painted last
    QBasicTimer timer_;
    QElapsedTimer sinceFrame_;
};

} // namespace vantrix
