#include "linux/status_area/mouse_click.h"

#include <QMouseEvent>

namespace vantrix {

StatusClick clickOf(const QMouseEvent& event) {
    StatusClick click;
    if (event.button() == Qt::RightButton)
        click.button = StatusClick::Button::right;
    else if (event.button() == Qt::MiddleButton)
        click.button = StatusClick::Button::middle;
    click.control = event.modifiers().testFlag(Qt::ControlModifier);
    return click;
}

void PressedButtons::press(const QMouseEvent& event) {
    pressed_ |= event.button();
}

bool PressedButtons::release(const QMouseEvent& event) {
    const bool wasPressed = pressed_.testFlag(event.button());
    pressed_.setFlag(event.button(), false);
    return wasPressed;
}

} // namespace vantrix
