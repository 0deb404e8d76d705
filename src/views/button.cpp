#include "views/button.h"

#include "views/focus_ring.h"

namespace vantrix {

Button::Button(const Theme& theme, const QString& text)
    : QPushButton(text), theme_(theme), ring_(*new FocusRing(*this, theme)) {
    setAutoDefault(true);
}

} // namespace vantrix
