#pragma once

#include "views/text_label.h"

namespace vantrix {

class Slider;
class UserDefaults;

/// The value beside a slider; keeps its width while the number changes.
class PercentLabel : public TextLabel {
    Q_OBJECT
  public:
    PercentLabel(const Theme& theme, ColorRole color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// The slider with the number stored under `key` beside it, as one control.
QWidget* withPercent(const Theme& theme, Slider* slider, const UserDefaults& defaults, const QString& key,
                     ColorRole color);

} // namespace vantrix
