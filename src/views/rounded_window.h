#pragma once

class QWidget;

namespace vantrix {

/// Cuts the corners off a window with a translucent ground, `radius` in points, where nothing would blend the soft ones
/// that it paints. Called anew whenever it is resized.
void roundWindow(QWidget& window, double radius);

} // namespace vantrix
