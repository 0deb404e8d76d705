#pragma once

#include "platform/status_item.h"

class QMouseEvent;

namespace vantrix {

/// What the event is to the status item; any button but the right and the middle one counts as the left.
StatusClick clickOf(const QMouseEvent& event);

} // namespace vantrix
