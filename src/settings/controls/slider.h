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
    };

    Slider(const Theme& theme, const QString& name, const Range& range);

    double fraction() const;
    double leastFraction() const { return range_.least / 100.0; }
    double mostFraction() const { return range_.most / 100.0; }
    /// Shows the nearest step, without announcing it.
    void setFraction(double fraction);

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
    void dragTo(double x);

    const Theme& theme_;
    FocusRing& ring_;
    Range range_;
};

} // namespace vantrix
