#pragma once

namespace vantrix {

/// Shows assistive programs every visible window of the application. The toolkit leaves out pop-ups, and the popover is
/// one. Called once, after the application object is made.
void installAccessibleApplication();

} // namespace vantrix
