#include "platform/desktop_services.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace vantrix {
namespace {

sigset_t terminatingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&set, signal);
    return set;
}

} // namespace

void ignoreBrokenPipes() {
    std::signal(SIGPIPE, SIG_IGN);
}

TerminationSignals::TerminationSignals(std::function<void()> terminate) {
    const sigset_t set = terminatingSignals();
    const int descriptor = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor < 0)
        return; // the signals keep their default effect
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [descriptor, set, terminate = std::move(terminate)] {
        signalfd_siginfo information;
        while (::read(descriptor, &information, sizeof information) == sizeof information) {
        }
        // Should the orderly end hang, the next signal ends the program the hard way.
        pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
        terminate();
    });
}

TerminationSignals::~TerminationSignals() {
    if (!notifier_)
        return;
    const int descriptor = static_cast<int>(notifier_->socket());
    notifier_.reset();
    ::close(descriptor);
}

} // namespace vantrix
