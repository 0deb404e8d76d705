// Whole kernel trees, printed by the program as it is run, beside what the common tools make of the same text.

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

/// What a person knows of a machine by looking into it, and by asking sensors(1) and upower.
struct Machine {
    const char* name;
    std::vector<std::string> ports; ///< sockets and antennas
    std::vector<std::string> disks;
    double celsius = -1.0; ///< of its processor; of several the mean
    int percent = -1;      ///< of its battery
    int health = -1;
    double watts = 0.0;
};

const Machine machines[] = {
    {"cloud-machine", {"eth0"}, {"vda"}},
    {"laptop-in-use", {"wlp3s0"}, {"nvme0n1"}, 58.0, 45, 90, 10.338},
    {"amd-desktop-in-use", {"enp5s0"}, {"nvme0n1", "sda"}, 68.0},
    {"arm-board-in-use", {"end0", "wlan0"}, {"mmcblk0"}, 51.5},
    {"two-socket-server-in-use", {"eno1", "eno2"}, {"sda", "sdb"}, 76.0},
    {"immutable-system-in-use", {"wlp2s0"}, {"nvme0n1"}},
    {"zfs-host-in-use", {"enp1s0f0"}, {"sda", "sdb"}},
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

/// The kernel's trees of a machine that works.
class WorkingMachine : public fakes::FixtureMachine {
  public:
    using Columns = std::map<std::size_t, std::uint64_t>;
    static constexpr double received = 6e9; // bytes through each port: more than 32 bits hold
    static constexpr double sent = 4e7;
    static constexpr double sectorsRead = 600'000; // by each disk
    static constexpr double sectorsWritten = 200'000;

    explicit WorkingMachine(const Machine& machine) : FixtureMachine(machine.name), machine_(machine) {}

    void work() const {
        for (const std::string& port : machine_.ports)
            grow("proc/net/dev", port + ':', {{1, received}, {9, sent}});
        for (const std::string& disk : machine_.disks)
            grow("proc/diskstats", disk, {{5, sectorsRead}, {9, sectorsWritten}});
        // user, nice, system, idle, waiting for a disk: 60 of 100 ticks were work
        grow("proc/stat", "cpu", {{1, 35}, {2, 5}, {3, 20}, {4, 30}, {5, 10}});
    }

  private:
    /// Adds to columns of the lines with a word that begins with `name`: a disk's partitions work along with it.
    void grow(const std::string& file, const std::string& name, const Columns& columns) const {
        std::istringstream lines(read(file));
        std::string grown;
        for (std::string line; std::getline(lines, line); grown += line + '\n') {
            auto words = wordsOf(line);
            if (std::none_of(words.begin(), words.end(), [&](const auto& word) { return word.starts_with(name); }))
                continue;
            for (const auto& [column, amount] : columns)
                words.at(column) = std::to_string(std::stoull(words.at(column)) + amount);
            line = words.front();
            for (auto word = words.begin() + 1; word != words.end(); ++word)
                line += ' ' + *word;
        }
        write(file, grown);
    }

    const Machine& machine_;
};

/// The second line that the program prints of a machine that worked since the first, whatever units its user prefers.
QJsonObject printed(const WorkingMachine& machine) {
    machine.write("vantrix/settings.json",
                  R"({"temperatureUnit": "fahrenheit", "networkUnit": "bits", "memoryUnit": "gib"})");
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, QString::fromStdString(machine.path("")));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(VANTRIX_PROGRAM),
                  {u"--print"_s, u"json"_s, u"--interval"_s, u"0.5"_s, u"--count"_s, u"2"_s, u"--proc-root"_s,
                   QString::fromStdString(machine.path("proc")), u"--sys-root"_s,
                   QString::fromStdString(machine.path("sys"))});
    const auto nextLine = [&] {
        while (!program.canReadLine() && program.waitForReadyRead()) {
        }
        return QJsonDocument::fromJson(program.readLine()).object();
    };
    EXPECT_FALSE(nextLine().isEmpty());
    machine.work();
    const QJsonObject line = nextLine();
    EXPECT_TRUE(program.waitForFinished());
    return line;
}

/// KiB in use as htop tells it, which counts locked files as cache; ZFS's cache counts as free as well.
double usedMemory(const TemporaryFolder& machine) {
    const std::string info = machine.read("proc/meminfo");
    const std::string arc = machine.read("proc/spl/kstat/zfs/arcstats");
    return number(info, "MemTotal:") - number(info, "MemFree:") - number(info, "Buffers:") - number(info, "Cached:") -
           number(info, "SReclaimable:") + number(info, "Shmem:") -
           (number(arc, "size", 2) - number(arc, "c_min", 2)) / 1024;
}

void expectMemory(const WorkingMachine& machine, const QJsonValue& memory) {
    const std::string info = machine.read("proc/meminfo");
    const double total = number(info, "MemTotal:");
    EXPECT_EQ(memory[u"total"].toDouble(), total * 1024);
    EXPECT_NEAR((memory[u"app"].toDouble() + memory[u"wired"].toDouble() + memory[u"compressed"].toDouble()) / 1024,
                usedMemory(machine), total * 0.005);
    EXPECT_EQ(memory[u"swapUsed"].toDouble(), (number(info, "SwapTotal:") - number(info, "SwapFree:")) * 1024);
    EXPECT_EQ(memory[u"pressure"].toString(), u"normal");
}

/// As top, ip -s link and iostat tell it. The bytes sent tell how much time went by between the lines.
void expectRates(const Machine& machine, const QJsonObject& line) {
    const auto ports = static_cast<double>(machine.ports.size());
    const auto disks = static_cast<double>(machine.disks.size());
    EXPECT_NEAR(line[u"cpu"][u"total"].toDouble(), 0.6, 1e-9);
    const double seconds = WorkingMachine::sent * ports / line[u"network"][u"upload"].toDouble();
    EXPECT_GT(seconds, 0.4);
    EXPECT_NEAR(line[u"network"][u"download"].toDouble() * seconds, WorkingMachine::received * ports, 1.0);
    const double read = WorkingMachine::sectorsRead * 512 * disks;
    EXPECT_NEAR(line[u"disk"][u"readRate"].toDouble() * seconds, read, read * 0.05);
    EXPECT_NEAR(line[u"disk"][u"writeRate"].toDouble() / line[u"disk"][u"readRate"].toDouble(), 1.0 / 3.0, 1e-9);
}

TEST(WholeMachines, PrintWhatTheCommonToolsTell) {
    for (const Machine& known : machines) {
        SCOPED_TRACE(known.name);
        const WorkingMachine machine(known);
        const QJsonObject line = printed(machine);
        expectMemory(machine, line[u"memory"]);
        expectRates(known, line);
        EXPECT_NEAR(line[u"sensors"][u"cpu"].toDouble(-1.0), known.celsius, 1e-9);
        const QJsonValue battery = line[u"battery"];
        EXPECT_EQ(battery[u"percent"].toInt(-1), known.percent);
        EXPECT_EQ(battery[u"healthPercent"].toInt(-1), known.health);
        EXPECT_NEAR(battery[u"watts"].toDouble(), known.watts, 1e-6);
    }
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
