#include "macos/kernel/program_output.h"

#include <cerrno>
#include <csignal>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "posix/file_descriptor.h"

extern char** environ; // no header of the system declares it

namespace vantrix {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Deadline = SteadyClock::time_point;

constexpr std::size_t longest = 1 << 20;

struct Pipe {
    Pipe() {
        int ends[2];
        if (pipe(ends) != 0)
            return;
        output = FileDescriptor(ends[0]);
        input = FileDescriptor(ends[1]);
        for (const int end : ends)
            fcntl(end, F_SETFD, FD_CLOEXEC);
    }

    FileDescriptor output; ///< the end to read from
    FileDescriptor input;  ///< the end to write to
};

/// How the program starts: with no input, its errors discarded, in a process group of its own, and with the default
/// action for SIGPIPE, which this program ignores.
struct Start {
    explicit Start(int output) {
        sigset_t brokenPipe;
        sigemptyset(&brokenPipe);
        sigaddset(&brokenPipe, SIGPIPE);
        isWhole = posix_spawn_file_actions_init(&actions) == 0 && posix_spawnattr_init(&attributes) == 0 &&
                  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0) == 0 &&
                  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO) == 0 &&
                  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0) == 0 &&
                  posix_spawnattr_setsigdefault(&attributes, &brokenPipe) == 0 &&
                  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF) == 0;
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;
    ~Start() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
    bool isWhole = false;
};

/// A running program. Unless it has ended by itself, the destructor kills it and every process it started.
class Child {
  public:
    Child(std::vector<std::string>& command, int output) {
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (std::string& argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        const Start start(output);
        pid_t started = 0;
        if (start.isWhole &&
            posix_spawn(&started, arguments[0], &start.actions, &start.attributes, arguments.data(), environ) == 0)
            pid_ = started;
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (pid_ <= 0)
            return;
        kill(-pid_, SIGKILL);
        while (waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) {
        }
    }

    explicit operator bool() const { return pid_ > 0; }

    /// Waits for the end. True when it exits before the deadline with status 0.
    bool succeeds(Deadline deadline) {
        int status = 0;
        pid_t ended = 0;
        while ((ended = waitpid(pid_, &status, WNOHANG)) == 0 && SteadyClock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (ended == 0)
            return false;
        if (ended == pid_)
            pid_ = 0;
        return ended > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

  private:
    pid_t pid_ = 0;
};

bool waitForInput(int descriptor, Deadline deadline) {
    int ready = 0;
    do {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - SteadyClock::now()).count();
        pollfd waiting{descriptor, POLLIN, 0};
        ready = left > 0 ? poll(&waiting, 1, static_cast<int>(left)) : 0;
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

std::optional<std::string> readToEnd(int descriptor, Deadline deadline) {
    std::string text;
    char chunk[4096];
    while (text.size() <= longest && waitForInput(descriptor, deadline)) {
        const ssize_t count = read(descriptor, chunk, sizeof chunk);
        if (count == 0)
            return text;
        if (count > 0)
            text.append(chunk, static_cast<std::size_t>(count));
        else if (errno != EINTR)
            break;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> programOutput(std::vector<std::string> command, std::chrono::milliseconds patience) {
    const Deadline deadline = SteadyClock::now() + patience;
    Pipe pipe;
    if (!pipe.output)
        return std::nullopt;
    Child child(command, pipe.input.get());
    pipe.input.close(); // or the text would never end
    if (!child)
        return std::nullopt;
    auto text = readToEnd(pipe.output.get(), deadline);
    return text && child.succeeds(deadline) ? std::move(text) : std::nullopt;
}

} // namespace vantrix
