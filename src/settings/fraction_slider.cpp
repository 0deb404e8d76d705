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

ValueLabel::ValueLabel(const Theme& theme, ColorRole color, const QString& widest)
    : TextLabel(theme, {.points = bodyPoints, .color = color, .monospaced = true, .side = Qt::AlignRight}),
      widest_(widest) {}

QSize ValueLabel::sizeHint() const {
    const QSize own = TextLabel::sizeHint();
    const int widest = static_cast<int>(std::ceil(theme().digits(bodyPoints).width(widest_.toStdString())));
    return {std::max(own.width(), widest), own.height()};
}

QWidget* withValue(const Theme& theme, Slider* slider, const UserDefaults& defaults,
                   const std::function<QString()>& text, const QString& widest, ColorRole color) {
    auto* label = new ValueLabel(theme, color, widest);
    follow(*label, defaults, [label, text] { label->setText(text()); });
    return besideEachOther(slider, label);
}

QWidget* withPercent(const Theme& theme, Slider* slider, const UserDefaults& defaults, const QString& key,
                     ColorRole color) {
    const auto text = [&defaults, key] { return thresholdText(defaults.number(key)); };
    return withValue(theme, slider, defaults, text, QStringLiteral("100%"), color);
}

} // namespace vantrix
