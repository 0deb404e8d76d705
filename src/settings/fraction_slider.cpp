#include "settings/fraction_slider.h"

#include <algorithm>
#include <cmath>

#include "settings/bindings.h"
#include "settings/controls/drawing.h"
#include "settings/controls/slider.h"
#include "settings/form.h"
#include "settings/settings_texts.h"
#include "support/user_defaults.h"
#include "views/theme.h"

namespace vantrix {

PercentLabel::PercentLabel(const Theme& theme, ColorRole color)
    : TextLabel(theme, {.points = bodyPoints, .color = color, .monospaced = true, .side = Qt::AlignRight}) {}

QSize PercentLabel::sizeHint() const {
    const QSize own = TextLabel::sizeHint();
    const int widest = static_cast<int>(std::ceil(theme().digits(bodyPoints).width("100%")));
    return {std::max(own.width(), widest), own.height()};
}

QWidget* withPercent(const Theme& theme, Slider* slider, const UserDefaults& defaults, const QString& key,
                     ColorRole color) {
    auto* label = new PercentLabel(theme, color);
    follow(*label, defaults, [label, &defaults, key] { label->setText(thresholdText(defaults.number(key))); });
    return besideEachOther(slider, label);
}

} // namespace vantrix
