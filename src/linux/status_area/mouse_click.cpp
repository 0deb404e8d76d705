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

} // namespace vantrix
