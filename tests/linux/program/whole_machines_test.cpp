// Whole kernel trees, printed by the program as it is run, beside what the common tools make of the same text.

#include <iterator>
#include <sstream>

#include <QJsonDocument>
#include <QJsonObject>

#include "fakes/fixture_machine.h"
#include "linux/program/ended_program.h"

namespace vantrix {
namespace {

/// What a person knows of a machine at work by looking into it, and by asking sensors(1) and upower.
struct Machine {
    const char* name;
    int passes = 2; ///< in the last, ports and disks have moved more than in the one before
    int ports = 1;  ///< sockets and antennas that did
    int disks = 1;
    double celsius = -1.0; ///< of its processor; of several the mean
    int percent = -1;      ///< of its battery
    int health = -1;
    double watts = 0.0;
};

const Machine machines[] = {
    {"cloud-machine", 1},
    {"laptop-with-two-packs", 2, 1, 1, 58.0, 45, 90, 10.338},
    {"amd-desktop", 2, 1, 2, 68.0},
    {"arm-board", 2, 2, 1, 51.5},
    {"two-socket-server", 2, 2, 2, 76.0},
    {"immutable-system"},
    {"zfs-host", 2, 1, 2},
};

std::vector<std::string> wordsOf(const std::string& line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The number in a column of the line that begins with `name`; 0 without such a line.
double number(const std::string& text, const std::string& name, std::size_t column = 1) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const auto words = wordsOf(line);
        if (!words.empty() && words.front() == name)
            return std::stod(words.at(column));
    }
    return 0.0;
}

std::string captureOf(const Machine& machine) {
    return std::string(FIXTURES) + '/' + machine.name;
}

/// What the program prints of a capture, whatever units its user prefers.
std::string replayed(const std::string& capture) {
    const TemporaryFolder home;
    home.write(".config/vantrix/settings.json",
               R"({"temperatureUnit": "fahrenheit", "networkUnit": "bits", "memoryUnit": "gib"})");
    return EndedProgram({"--replay", capture, "--print", "json"}, home.path("")).output;
}

/// KiB in use as htop tells it, which counts locked files as cache; ZFS's cache counts as free as well.
double usedMemory(const TemporaryFolder& machine) {
    const std::string info = machine.read("proc/meminfo");
    const std::string arc = machine.read("proc/spl/kstat/zfs/arcstats");
    return number(info, "MemTotal:") - number(info, "MemFree:") - number(info, "Buffers:") - number(info, "Cached:") -
           number(info, "SReclaimable:") + number(info, "Shmem:") -
           (number(arc, "size", 2) - number(arc, "c_min", 2)) / 1024;
}

void expectMemory(const TemporaryFolder& machine, const QJsonValue& memory) {
    const std::string info = machine.read("proc/meminfo");
    const double total = number(info, "MemTotal:");
    EXPECT_EQ(memory[u"total"].toDouble(), total * 1024);
    EXPECT_NEAR((memory[u"app"].toDouble() + memory[u"wired"].toDouble() + memory[u"compressed"].toDouble()) / 1024,
                usedMemory(machine), total * 0.005);
    EXPECT_EQ(memory[u"swapUsed"].toDouble(), (number(info, "SwapTotal:") - number(info, "SwapFree:")) * 1024);
    EXPECT_EQ(memory[u"pressure"].toString(), u"normal");
}

/// As top, ip -s link and iostat tell it.
void expectRates(const Machine& machine, const QJsonObject& line) {
    constexpr double seconds = 2.0;  // between two passes
    constexpr double received = 6e9; // bytes through each port: more than 32 bits hold
    constexpr double sent = 4e7;
    constexpr double read = 600'000 * 512; // by each disk
    constexpr double written = 200'000 * 512;
    EXPECT_NEAR(line[u"cpu"][u"total"].toDouble(), 0.6, 1e-9); // 60 of 100 ticks were work
    EXPECT_EQ(line[u"network"][u"download"].toDouble() * seconds, received * machine.ports);
    EXPECT_EQ(line[u"network"][u"upload"].toDouble() * seconds, sent * machine.ports);
    EXPECT_EQ(line[u"disk"][u"readRate"].toDouble() * seconds, read * machine.disks);
    EXPECT_EQ(line[u"disk"][u"writeRate"].toDouble() * seconds, written * machine.disks);
}

TEST(WholeMachines, PrintWhatTheCommonToolsTell) {
    for (const Machine& known : machines) {
        SCOPED_TRACE(known.name);
        const auto lines = QByteArray::fromStdString(replayed(captureOf(known))).trimmed().split('\n');
        EXPECT_EQ(lines.size(), known.passes);
        const QJsonObject line = QJsonDocument::fromJson(lines.back()).object();
        expectMemory(fakes::FixtureMachine(known.name, known.passes), line[u"memory"]);
        expectRates(known, line);
        EXPECT_NEAR(line[u"sensors"][u"cpu"].toDouble(-1.0), known.celsius, 1e-9);
        const QJsonValue battery = line[u"battery"];
        EXPECT_EQ(battery[u"percent"].toInt(-1), known.percent);
        EXPECT_EQ(battery[u"healthPercent"].toInt(-1), known.health);
        EXPECT_NEAR(battery[u"watts"].toDouble(), known.watts, 1e-6);
    }
}

/// Nothing of the machine that replays them gets in: not its clock, its volumes, its language.
TEST(WholeMachines, PrintTheSameEverywhere) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(FIXTURES)) {
        std::ifstream file(entry.path() / "records.json");
        if (!file)
            continue;
        const std::string records((std::istreambuf_iterator<char>(file)), {});
        EXPECT_EQ(replayed(entry.path()), records) << entry.path();
        ++count;
    }
    EXPECT_GE(count, 3);
}

TEST(EveryMachine, UsesAsMuchMemoryAsTheCommonToolsTell) {
    for (const auto& entry : std::filesystem::directory_iterator(FIXTURES)) {
        SCOPED_TRACE(entry.path());
        const fakes::FixtureMachine machine(entry.path().filename());
        const double total = number(machine.read("proc/meminfo"), "MemTotal:");
        const auto sample = MemorySampler(*makeSamplingSources(machine.roots()).memory).sample();
        EXPECT_EQ(sample.has_value(), total > 0.0); // one machine has no /proc
        EXPECT_NEAR(usedFraction(sample.value_or(MemorySample())) * total, usedMemory(machine), total * 0.005);
    }
}

} // namespace
} // namespace vantrix
