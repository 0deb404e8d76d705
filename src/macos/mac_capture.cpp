#include "platform/capture.h"

namespace vantrix {

// This kernel shows itself in no files that could be laid down.

bool canCapture() {
    return false;
}

OrProblem<Capture> startCapture(const std::string&, const KernelRoots&, double) {
    return "only on Linux";
}

OrProblem<Replay> startReplay(const std::string&) {
    return "only on Linux";
}

} // namespace vantrix
