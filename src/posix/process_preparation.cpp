#include "platform/desktop_services.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace vantrix {
namespace {

/// What is opened next would otherwise become the standard output, and be written to.
void openStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) == -1)
            ::open("/dev/null", O_RDWR); // becomes the lowest number that is free
}

/// A machine with many sensors has more files than the usual limit of open ones.
void allowManyFiles() {
    constexpr rlim_t enough = 8192;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= enough)
        return;
    limit.rlim_cur = std::min(limit.rlim_max, enough);
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

void prepareProcess() {
    openStandardStreams();
    allowManyFiles();
}

} // namespace vantrix
