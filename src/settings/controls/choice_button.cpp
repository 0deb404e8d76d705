#include "settings/controls/choice_button.h"

#include "views/focus_ring.h"

namespace vantrix {

ChoiceButton::ChoiceButton(const Theme& theme, const QString& text)
    : QRadioButton(text), theme_(theme), ring_(*new FocusRing(*this, theme)) {
    setAttribute(Qt::WA_Hover);
    // The toolkit sees to this only once one of them has had the focus.
    setFocusPolicy(Qt::ClickFocus);
    connect(this, &QRadioButton::toggled, this,
            [this](bool chosen) { setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus); });
}

} // namespace vantrix
