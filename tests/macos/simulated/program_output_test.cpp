#include "macos/kernel/program_output.h"

#include <cerrno>
#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrix {
namespace {

using std::chrono::milliseconds;

struct Case {
    const char* name;
    const char* script;
    std::optional<std::string> output;
    milliseconds patience = milliseconds(20'000);
    const char* program = "/bin/sh";
};

std::ptrdiff_t openDescriptors() {
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

/// The program itself takes no notice of broken pipes, and signals may interrupt it at any time.
class ProgramOutputTest : public testing::Test {
  protected:
    ProgramOutputTest() : brokenPipe_(std::signal(SIGPIPE, SIG_IGN)) {
        struct sigaction interrupt {};
        interrupt.sa_handler = [](int) {};
        sigaction(SIGALRM, &interrupt, &alarm_);
        const itimerval often{{0, 5000}, {0, 5000}};
        setitimer(ITIMER_REAL, &often, nullptr);
    }
    ~ProgramOutputTest() override {
        const itimerval never{};
        setitimer(ITIMER_REAL, &never, nullptr);
        sigaction(SIGALRM, &alarm_, nullptr);
        std::signal(SIGPIPE, brokenPipe_);
    }

  private:
    void (*brokenPipe_)(int);
    struct sigaction alarm_ {};
};

/// A pipe that programs inherit, and this one's input meanwhile: it ends when nobody writes to it any more.
class Witness {
  public:
    Witness() {
        EXPECT_EQ(pipe(ends_), 0);
        EXPECT_EQ(dup2(ends_[0], STDIN_FILENO), STDIN_FILENO);
    }
    ~Witness() {
        dup2(input_, STDIN_FILENO);
        close(input_);
        close(ends_[0]);
    }
    Witness(const Witness&) = delete;
    Witness& operator=(const Witness&) = delete;

    /// Asks once. True when no other process lives that holds the pipe, or all that do end soon.
    bool isAlone() {
        close(ends_[1]);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        char byte = 0;
        ssize_t count = -1;
        while (count < 0 && std::chrono::steady_clock::now() < deadline)
            count = read(ends_[0], &byte, 1); // interrupted every now and then
        return count == 0;
    }

  private:
    int input_ = dup(STDIN_FILENO);
    int ends_[2] = {-1, -1};
};

// What the program's own descriptors are, and which of them are the pipe that it prints to.
constexpr const char* listDescriptors = "readlink /proc/$$/fd/0 /proc/$$/fd/2; output=$(readlink /proc/$$/fd/1); "
                                        "for fd in /proc/$$/fd/*; do "
                                        "[ \"$(readlink $fd)\" = \"$output\" ] && echo ${fd##*/}; done; exit 0";

const Case cases[] = {
    {"prints", "echo one; echo two", "one\ntwo\n"},
    {"is_silent", "exit 0", ""},
    {"has_only_what_it_needs", listDescriptors, "/dev/null\n/dev/null\n1\n"},
    {"prints_late", "sleep 0.1; echo late", "late\n"},
    {"prints_more_than_a_pipe_holds", "printf %0100000d 0", std::string(100'000, '0')},
    {"fails", "echo half; exit 3", std::nullopt},
    {"is_ended_by_a_signal", "echo half; kill -9 $$", std::nullopt},
    {"is_ended_by_a_broken_pipe", "kill -PIPE $$; echo alive", std::nullopt},
    {"is_missing", "", std::nullopt, milliseconds(20'000), "/nowhere/program"},
    {"floods", "head -c 2097152 /dev/zero", std::nullopt},
    {"never_ends", "echo half; exec sleep 600", std::nullopt, milliseconds(100)},
    {"never_ends_in_company", "sleep 600 & sleep 600 & wait", std::nullopt, milliseconds(100)},
    {"closes_its_output_and_stays", "exec >&-; exec sleep 600", std::nullopt, milliseconds(100)},
};

TEST_F(ProgramOutputTest, EndsAndLeavesNothingBehind) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Witness witness;
        const auto before = openDescriptors();
        EXPECT_EQ(programOutput({row.program, "-c", row.script}, row.patience), row.output);
        EXPECT_EQ(openDescriptors(), before);
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD); // no child lives or waits to be reaped
        EXPECT_TRUE(witness.isAlone());
    }
}

} // namespace
} // namespace vantrix
