#include "platform/desktop_services.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace vantrix {
namespace {

constexpr int terminating[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may do little more than write to a pipe. -1 while nobody listens.
volatile std::sig_atomic_t writingEnd = -1;

void tell(int) {
    const int before = errno; // the interrupted code may be about to read it
    const char byte = 0;
    [[maybe_unused]] const ssize_t ignored = ::write(writingEnd, &byte, 1);
    errno = before;
}

} // namespace

void ignoreBrokenPipes() {
    std::signal(SIGPIPE, SIG_IGN);
}

TerminationSignals::TerminationSignals(std::function<void()> terminate) {
    int ends[2];
    if (::pipe(ends) != 0)
        return; // the signals keep their default effect
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    writingEnd = ends[1];
    struct sigaction action {};
    action.sa_handler = tell;
    // If the orderly exit hangs, the next signal kills the program.
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : terminating)
        ::sigaction(signal, &action, nullptr);
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                     [reading = ends[0], terminate = std::move(terminate)] {
                         char bytes[8];
                         while (::read(reading, bytes, sizeof bytes) > 0) {
                         }
                         for (const int signal : terminating)
                             std::signal(signal, SIG_DFL);
                         terminate();
                     });
}

TerminationSignals::~TerminationSignals() {
    if (!notifier_)
        return;
    for (const int signal : terminating)
        std::signal(signal, SIG_DFL);
    const int reading = static_cast<int>(notifier_->socket());
    notifier_.reset();
    ::close(writingEnd);
    writingEnd = -1;
    ::close(reading);
}

} // namespace vantrix
