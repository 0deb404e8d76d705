#pragma once

#include <functional>
#include <memory>

namespace vantrix {

/// Gets a pop-up window what some displays do not give it: the keyboard and, if `takesMouse`, every click on something
/// else, be it the panel with the status item. Null where pop-ups need no help. To be taken before the pop-up is shown,
/// and let go of when it closes; `lost` is called when the user turns to another window meanwhile.
std::shared_ptr<void> takeInput(bool takesMouse, std::function<void()> lost);

} // namespace vantrix
