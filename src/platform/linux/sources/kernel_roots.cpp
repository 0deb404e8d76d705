#include "platform/linux/sources/kernel_roots.h"

#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {
namespace {

void trim(std::string& path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
}

} // namespace

KernelRoots withoutTrailingSlashes(KernelRoots roots) {
    trim(roots.proc);
    trim(roots.sys);
    return roots;
}

std::string netFolder(const KernelRoots& roots) {
    std::string foreign = roots.proc + "/1/net";
    return roots != KernelRoots() && pathExists(foreign + "/dev") ? foreign : roots.proc + "/net";
}

} // namespace vantrix
