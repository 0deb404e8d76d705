#include <filesystem>
#include <unistd.h>

#include "platform/desktop_services.h"

namespace vantrix {

std::optional<std::string> unreadableRoot(const KernelRoots& roots) {
    std::error_code error;
    for (const std::string& root : {roots.proc, roots.sys})
        if (!std::filesystem::is_directory(root, error) || ::access(root.c_str(), R_OK | X_OK) != 0)
            return root;
    return std::nullopt;
}

} // namespace vantrix
