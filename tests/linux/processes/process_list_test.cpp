#include "linux/processes/process_list.h"

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "linux/processes/application_unit.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

class ProcessListTest : public testing::Test {
  protected:
    struct Traits {
        int parent = 1;
        int session = 1;
        int terminal = 0;
        unsigned flags = 0;
        std::uint64_t start = 100;
        std::uint64_t pages = 10;
    };

    void run(int id, const std::string& name, const Traits& traits, const std::string& group = "/system.slice") {
        const std::string folder = "proc/" + std::to_string(id);
        machine.write(folder + "/stat", std::to_string(id) + " (" + name + ") S " + std::to_string(traits.parent) +
                                            " 1 " + std::to_string(traits.session) + ' ' +
                                            std::to_string(traits.terminal) + " -1 " + std::to_string(traits.flags) +
                                            " 9 9 9 9 200 50 7000 7000 20 0 1 0 " + std::to_string(traits.start) +
                                            " 1000000 " + std::to_string(traits.pages) + " 18446744073709551615 1\n");
        machine.write(folder + "/cgroup", "0::" + group + '\n');
    }

    /// The applications of the processes, in the order of their identifiers.
    std::vector<std::string> look() {
        std::vector<std::string> names;
        if (list.read(processes))
            for (const auto& process : processes)
                names.push_back(list.applications()[process.application].name);
        return names;
    }

    fakes::FixtureMachine machine{"ordinary-desktop"};
    ProcessList list{machine.path("proc"), machine.path("sys"),
                     ApplicationEntries({machine.path("none"), machine.path("entries")}, {"de_DE", "de"})};
    std::vector<ProcessSampler::Process> processes;
};

TEST_F(ProcessListTest, NamesAnApplicationByItsControlGroup) {
    machine.write(
        "entries/firefox-esr.desktop",
        "[Desktop Entry]\nType=Application\nName=Firefox\nName[de]=Feuer\nfuchs\nIcon=web\n[Other]\nName=No\n");
    const std::string group = "/user.slice/user@7.service/app.slice/app-gnome-firefox\\x2desr-1234.scope";
    run(20, "firefox-esr", {}, group);
    run(21, "Isolated Web Co", {.parent = 20}, group);
    run(30, "nautilus", {}, "/user@7.service/app.slice/app-org.gnome.Nautilus@ab.service/below");
    EXPECT_THAT(look(), ElementsAre("Feuer", "Feuer", "org.gnome.Nautilus"));
    EXPECT_EQ(list.applications()[processes[0].application].icon, "web");
    EXPECT_EQ(processes[0].cpuTime, 2'500'000'000U); // without its children's
    EXPECT_EQ(processes[0].memory, 40960U);
    // What is charged to the group counts shared pages once.
    machine.write("sys/fs/cgroup" + group + "/memory.current", "20480\n");
    look();
    EXPECT_EQ(processes[0].memory + processes[1].memory, 20480U);
}

TEST_F(ProcessListTest, NamesItByWhatALogInOrATerminalRuns) {
    const std::string login = "/user.slice/user-7.slice/session-2.scope";
    run(1, "systemd", {.parent = 0, .session = 1});
    run(9, "systemd", {.session = 9}, "/user.slice/user@7.service/init.scope");
    run(20, "bash", {.session = 20, .terminal = 34816}, login);
    run(21, "make", {.parent = 20, .session = 20, .terminal = 34816}, login);
    run(22, "cc1plus", {.parent = 21, .session = 20, .terminal = 34816}, login);
    run(30, "player", {.session = 8}, login); // left behind by its session
    run(31, "decoder", {.parent = 30, .session = 8}, login);
    run(32, "sound", {.parent = 9, .session = 9}, "/user.slice/user@7.service/sound.service");
    run(40, "browser", {.parent = 30, .session = 40}, login); // a session of its own
    run(41, "tab", {.parent = 40, .session = 40}, login);
    run(50, "server", {.session = 50});
    run(51, "worker", {.parent = 50, .session = 50});
    EXPECT_THAT(look(), ElementsAre("systemd", "systemd", "bash", "make", "make", "player", "player", "sound",
                                    "browser", "browser", "server", "worker"));
}

TEST_F(ProcessListTest, KernelThreadsAreOneEntry) {
    run(2, "kthreadd", {.parent = 0, .flags = 0x208040});
    run(3, "kworker/0:1-events_freezable", {.parent = 2, .flags = 0x4208060});
    run(4, "Kernel", {}); // a program of that name is none
    EXPECT_THAT(look(), ElementsAre("Kernel", "Kernel", "Kernel"));
    EXPECT_EQ(processes[0].application, processes[1].application);
    EXPECT_NE(processes[0].application, processes[2].application);
}

TEST_F(ProcessListTest, NamesMayHoldAnything) {
    run(11, "a) S 2 (b\n", {});
    run(12, "\xff\x1b[31m", {});
    run(13, "", {});
    run(14, "../../etc/cron", {});
    run(15, "gnome-terminal-", {});
    machine.write("proc/15/cmdline", std::string("/usr/libexec/gnome-terminal-server\0--now", 40));
    machine.write("proc/16/stat", "16 (cut short) S 1 1");
    machine.write("proc/17/other", "17");
    EXPECT_THAT(look(), ElementsAre("a) S 2 (b ", "[31m", "?", "../../etc/cron", "gnome-terminal-server"));
    const std::string deep(200, '-');
    EXPECT_THAT(entryNames("/app-.scope"), ElementsAre(""));
    EXPECT_EQ(entryNames("/app-" + deep + ".scope").size(), 200U);
    EXPECT_EQ(applicationGroup("app-no.scope"), "");
    EXPECT_EQ(controlGroup("12:memory:/a\n1:name=systemd:/user/app-x.scope\n0::/\n"), "/user/app-x.scope");
}

/// A desktop moves what it starts into a group of its own a moment later; and a shell becomes what it runs.
TEST_F(ProcessListTest, LooksAgainAtNewProcesses) {
    run(11, "sh", {});
    EXPECT_THAT(look(), ElementsAre("sh"));
    run(11, "sh", {}, "/app-mail-1.scope");
    EXPECT_THAT(look(), ElementsAre("mail"));
    run(11, "sh", {});
    EXPECT_THAT(look(), ElementsAre("mail"));
    run(11, "game", {});
    EXPECT_THAT(look(), ElementsAre("game"));
    run(11, "game", {.start = 200}, "/app-other-1.scope");
    EXPECT_THAT(look(), ElementsAre("other"));
    list.forget();
    EXPECT_THAT(look(), ElementsAre("other"));
    std::filesystem::remove_all(machine.path("proc/11"));
    EXPECT_THAT(look(), ElementsAre());
}

} // namespace
} // namespace vantrix
