#pragma once

#include <functional>

#include <QSlider>

namespace vantrix {

class FocusRing;
class Theme;

/// Chooses a fraction in steps of whole hundredths, so that what is stored is always a clean number such as 0.85.
class Slider : public QSlider {
    Q_OBJECT
  public:
    /// All in hundredths.
    struct Range {
        int least;
        int most;
        int step;
        /// What the ends of the groove stand for, where it shows more than can be chosen.
        int first = least;
        int last = most;
    };

    Slider(const Theme& theme, const QString& name, const Range& range);

    /// What the knob stands at: the number last set, or the step last chosen.
    double fraction() const { return shown_; }
    double leastFraction() const { return range_.least / 100.0; }
    double mostFraction() const { return range_.most / 100.0; }
    /// Shows that number, or the nearer end of the groove, without announcing it.
    void setFraction(double fraction);

    /// What assistive programs say for the present value; a percentage where it is not set.
    std::function<QString()> valueText;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    /// By the user.
    void fractionChosen(double fraction);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QRectF groove() const;
    double hundredthsLong() const { return range_.last - range_.first; }
    void dragTo(double x);
    void choose();

    const Theme& theme_;
    FocusRing& ring_;
    Range range_;
    double shown_ = 0.0;
};

} // namespace vantrix
