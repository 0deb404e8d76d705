#include "linux/kernel/kernel_roots.h"

#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "linux/kernel/kernel_tree.h"

namespace vantrix {

std::string netFolder(const KernelRoots& roots) {
    std::string foreign = roots.proc + "/1/net";
    return roots != KernelRoots() && pathExists(foreign + "/dev") ? foreign : roots.proc + "/net";
}

std::optional<std::string> unreadableRoot(const KernelRoots& roots) {
    std::error_code error;
    for (const std::string& root : {roots.proc, roots.sys})
        if (!std::filesystem::is_directory(root, error) || ::access(root.c_str(), R_OK | X_OK) != 0)
            return root;
    return std::nullopt;
}

} // namespace vantrix
