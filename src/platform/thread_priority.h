#pragma once

namespace vantrix {

/// Lets the calling thread run only when nothing that somebody waits for wants to: nice 10 on Linux, utility quality of
/// service on a Mac. Does nothing where the system refuses.
void lowerThreadPriority();

} // namespace vantrix
