#include "linux/kernel/kernel_roots.h"

#include "linux/kernel/kernel_tree.h"

namespace vantrix {

std::string netFolder(const KernelRoots& roots) {
    std::string foreign = roots.proc + "/1/net";
    return roots != KernelRoots() && pathExists(foreign + "/dev") ? foreign : roots.proc + "/net";
}

} // namespace vantrix
