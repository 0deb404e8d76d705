#pragma once

#include <functional>

#include "views/text_label.h"

namespace vantrix {

class Slider;
class UserDefaults;

/// The value beside a slider; keeps its width, that of `widest` at least, while the number changes.
class ValueLabel : public TextLabel {
    Q_OBJECT
  public:
    ValueLabel(const Theme& theme, ColorRole color, const QString& widest);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    QString widest_;
};

/// The slider with what `text` says of the stored number beside it, as one control.
QWidget* withValue(const Theme& theme, Slider* slider, const UserDefaults& defaults,
                   const std::function<QString()>& text, const QString& widest, ColorRole color);

/// The slider with the number stored under `key` beside it, as one control.
QWidget* withPercent(const Theme& theme, Slider* slider, const UserDefaults& defaults, const QString& key,
                     ColorRole color);

} // namespace vantrix
