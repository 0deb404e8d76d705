#pragma once

namespace vantrix {

/// Shows assistive programs every visible window of the application, pop-ups included: the toolkit's own account of
/// the application leaves those out, and with them the popover. Called once after the application object is made.
void installAccessibleApplication();

} // namespace vantrix
