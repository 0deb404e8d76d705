// Captures as people take and replay them.

#include <QJsonDocument>
#include <QJsonObject>

#include "fakes/fixture_machine.h"
#include "linux/program/ended_program.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

/// Everything that somebody gets who is sent a folder: names, texts, where links lead.
std::string allOf(const std::string& folder) {
    std::string all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        all += entry.path().string() + '\n';
        if (entry.is_symlink())
            all += std::filesystem::read_symlink(entry).string() + '\n';
        else if (entry.is_regular_file())
            all += std::string(std::istreambuf_iterator<char>(std::ifstream(entry.path()).rdbuf()), {});
    }
    return all;
}

TEST(Capture, OfThisMachineReplaysAsItWasTaken) {
    const TemporaryFolder folder;
    const std::string capture = folder.path("made/by the program");
    const EndedProgram taken({"--capture", capture, "--count", "2", "--interval", "0.5"});
    EXPECT_EQ(taken.status, 0) << taken.errors;
    const auto files = std::count_if(std::filesystem::recursive_directory_iterator(capture), {},
                                     [](const auto& entry) { return !is_directory(entry.symlink_status()); });
    EXPECT_FALSE(std::filesystem::exists(capture + "/proc/1")) << "what runs is private";
    EXPECT_EQ(taken.output,
              std::to_string(files) + " files in " + capture + ": look at its README before you send them\n");
    const std::string records = folder.read("made/by the program/records.json");
    EXPECT_EQ(std::count(records.begin(), records.end(), '\n'), 2);
    EXPECT_EQ(EndedProgram({"--replay", capture, "--print", "json"}).output, records);
    EXPECT_EQ(EndedProgram({"--replay", capture, "--print", "json", "--count", "1"}).output,
              records.substr(0, records.find('\n') + 1));
    EXPECT_EQ(EndedProgram({"--replay", capture, "--doctor", "json"}).output,
              EndedProgram({"--replay", capture, "--doctor", "json"}, "/tmp").output);
}

TEST(Capture, BearsNoNamesAndGivesTheSameNumbers) {
    const fakes::FixtureMachine machine("laptop-that-bears-names");
    const TemporaryFolder folder;
    const auto [proc, sys] = machine.roots();
    const EndedProgram taken(
        {"--capture", folder.path("a"), "--count", "1", "--interval", "0.5", "--proc-root", proc, "--sys-root", sys});
    EXPECT_EQ(taken.status, 0) << taken.errors;
    const std::string all = allOf(folder.path("a"));
    for (const char* secret :
         {"00e04c680123", "00:e0:4c:68:01:23", "a4:77:58:12:ab:cd", "Ottilie", "ottilie", "41167", "a1b2c3d4",
          "50014ee2b1a9c3d7", "0102A8C0", "0002A8C0", "2e04cfffe680199", "20010470", "5c:f3:70:8b:12:34"})
        EXPECT_THAT(all, ::testing::Not(::testing::HasSubstr(secret)));
    const auto recordOf = [](const std::string& line) {
        return QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    };
    const auto replayed = recordOf(EndedProgram({"--replay", folder.path("a"), "--print", "json"}).output);
    const auto live = recordOf(
        EndedProgram({"--print", "json", "--count", "1", "--interval", "0.5", "--proc-root", proc, "--sys-root", sys})
            .output);
    for (const char16_t* key : {u"battery", u"cpu", u"memory", u"network"})
        EXPECT_EQ(replayed[QStringView(key)], live[QStringView(key)]);
    EXPECT_EQ(replayed[u"networkInfo"][u"displayName"], u"USB Ethernet"_s);
    EXPECT_EQ(replayed[u"accessories"][0][u"percent"], 73);
    EXPECT_EQ(replayed[u"accessories"][0][u"symbol"], u"computermouse"_s);
}

/// What is only looked for is laid down empty.
TEST(Capture, OpensNothingOfADeviceThatSleeps) {
    const fakes::FixtureMachine machine("gpu-asleep-beside-another");
    const TemporaryFolder folder;
    const auto [proc, sys] = machine.roots();
    EXPECT_EQ(EndedProgram({"--capture", folder.path("a"), "--count", "1", "--interval", "0.5", "--proc-root", proc,
                            "--sys-root", sys})
                  .status,
              0);
    EXPECT_EQ(folder.read("a/sys/class/drm/card0/device/power/runtime_status"), "suspended\n");
    EXPECT_EQ(folder.read("a/sys/class/drm/card0/device/gpu_busy_percent"), "");
    EXPECT_EQ(folder.read("a/sys/class/drm/card2/device/gpu_busy_percent"), "15\n");
}

TEST(Capture, RefusesFoldersThatAreNoPlaceForIt) {
    const TemporaryFolder folder;
    folder.write("full/letter", "mine\n");
    const std::string full = folder.path("full");
    const std::string file = folder.path("full/letter");
    const struct {
        EndedProgram program;
        std::string error;
    } rows[] = {
        {EndedProgram({"--capture", full}), "--capture: the folder " + full + " is not empty"},
        {EndedProgram({"--capture", file}), "--capture: " + file + " is no folder"},
        {EndedProgram({"--capture", file + "/a"}), "--capture: cannot write into the folder " + file + "/a"},
        {EndedProgram({"--replay", full}), "--replay: " + full + " holds no capture"},
        {EndedProgram({"--replay", file, "--doctor"}), "--replay: " + file + " holds no capture"},
    };
    for (const auto& [program, error] : rows) {
        EXPECT_EQ(program.errors, "vantrix: " + error + '\n');
        EXPECT_NE(program.status, 0);
        EXPECT_EQ(program.output, "");
    }
    EXPECT_EQ(folder.files(), std::vector<std::string>{"full/letter"});
}

} // namespace
} // namespace vantrix
