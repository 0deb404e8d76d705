#pragma once

#include <optional>

#include <QColor>

namespace vantrix {

/// The colour of Plasma's panels after the user's configuration: of plasmarc's theme or, where that has no colours of
/// its own, of the scheme in kdeglobals. Absent where neither is written down.
std::optional<QColor> plasmaPanelColor();

} // namespace vantrix
