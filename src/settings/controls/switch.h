#pragma once

#include <QCheckBox>
#include <QVariantAnimation>

namespace vantrix {

class FocusRing;
class Theme;

/// A sliding switch. `name` is for assistive programs: the text beside the switch is a label of its own.
class Switch : public QCheckBox {
    Q_OBJECT
  public:
    Switch(const Theme& theme, const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    void slideKnob(bool on);

    const Theme& theme_;
    FocusRing& ring_;
    QVariantAnimation knob_; // 0: off, 1: on; runs only while the knob slides
    double place_ = 0.0;
};

} // namespace vantrix
