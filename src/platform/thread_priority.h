#pragma once

namespace vantrix {

/// Lowers the calling thread's priority, so that it does not slow down what somebody waits for: nice 10 on Linux,
/// utility quality of service on a Mac. Does nothing where the system refuses.
void lowerThreadPriority();

} // namespace vantrix
