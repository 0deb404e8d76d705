#include "macos/kernel/program_output.h"

#include <cerrno>
#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <poll.h>
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

const Case cases[] = {
    {"prints", "echo one; echo two", "one\ntwo\n"},
    {"is_silent", "exit 0", ""},
    {"has_no_input_and_no_errors", "readlink /proc/$$/fd/0 /proc/$$/fd/2", "/dev/null\n/dev/null\n"},
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

TEST(ProgramOutput, EndsAndLeavesNothingBehind) {
    const auto brokenPipe = std::signal(SIGPIPE, SIG_IGN); // as in the program
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        int inherited[2]; // by every process that is started, and ends when none of them has it any more
        ASSERT_EQ(pipe(inherited), 0);
        const auto before = openDescriptors();
        EXPECT_EQ(programOutput({row.program, "-c", row.script}, row.patience), row.output);
        EXPECT_EQ(openDescriptors(), before);
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD); // no child lives or waits to be reaped
        close(inherited[1]);
        pollfd end{inherited[0], POLLIN, 0};
        EXPECT_EQ(poll(&end, 1, 20'000), 1);
        close(inherited[0]);
    }
    std::signal(SIGPIPE, brokenPipe);
}

} // namespace
} // namespace vantrix
