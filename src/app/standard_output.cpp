#include "app/standard_output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "support/utf8.h"

namespace vantrix {

std::optional<int> writeOut(const std::string& told) {
    const std::string text = withoutTerminalControls(told);
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return std::nullopt;
    if (errno == EPIPE)
        return 0; // the reader has gone, which is how a pipe usually ends
    std::fprintf(stderr, "vantrix: cannot write: %s\n", std::strerror(errno));
    return 1;
}

} // namespace vantrix
