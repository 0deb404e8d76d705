#pragma once

class QWidget;

namespace vantrix {

/// Cuts off the corners of a translucent window, `radius` in points, where nothing blends the soft ones that it paints.
/// To be called again after every resize.
void roundWindow(QWidget& window, double radius);

} // namespace vantrix
