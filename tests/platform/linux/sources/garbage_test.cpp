#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/linux/sources/cpu_topology.h"
#include "platform/linux/sources/linux_memory_source.h"
#include "platform/linux/sources/proc_diskstats.h"
#include "platform/linux/sources/proc_net_dev.h"
#include "platform/linux/sources/proc_stat.h"
#include "platform/linux/sources/processor_brand.h"
#include "platform/linux/sources/rtnetlink_messages.h"
#include "platform/linux/sources/sysfs_links.h"
#include "platform/sampling_sources.h"
#include "temporary_folder.h"

namespace vantrix {
namespace {

/// Damages texts the same way in every run.
class Mutator {
  public:
    std::string damaged(std::string text) {
        for (std::size_t count = 1 + below(4); count > 0; --count)
            damageOnce(text);
        return text;
    }

  private:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    void damageOnce(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::string_view odd[] = {"99999999999999999999999",
                                        "18446744073709551615",
                                        "36028797018963967",
                                        "-1",
                                        ":",
                                        "\n",
                                        " ",
                                        "en",
                                        "cpu7 ",
                                        "../",
                                        "nan",
                                        "1e308",
                                        "\xff\xfe"};
        switch (below(7)) {
        case 0:
            text.resize(place);
            break;
        case 1:
            text.insert(place, odd[below(std::size(odd))]);
            break;
        case 2:
            text.erase(place, below(40));
            break;
        case 3:
            if (place < text.size())
                text[place] = static_cast<char>(below(256));
            break;
        case 4:
            text.insert(place, text.substr(below(text.size() + 1), 200));
            break;
        case 5:
            text.insert(place, below(3), '\0');
            break;
        default:
            replaceDigits(text, place, odd[below(3)]);
        }
    }

    static void replaceDigits(std::string& text, std::size_t from, std::string_view by) {
        const auto begin = text.find_first_of("0123456789", from);
        if (begin == std::string::npos)
            return;
        const auto end = std::min(text.find_first_not_of("0123456789", begin), text.size());
        text.replace(begin, end - begin, by);
    }

    std::mt19937 random_{20240229};
};

std::string contentOf(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

void parseWithEverything(const std::string& text) {
    std::vector<CoreTicks> cores;
    std::vector<NetDevLine> links;
    std::vector<DiskStatsLine> disks;
    parseProcStat(text, cores);
    parseNetDev(text, links);
    if (parseDiskStats(text, disks)) {
        for (const DiskStatsLine& disk : disks)
            parseDiskCounters(disk.counters);
    }
    const auto info = parseMemInfo(text);
    const auto stall = parsePressure(text);
    if (info) {
        EXPECT_EQ(memoryStatistics(*info, stall, 0).pageSize, 1024u);
    }
    if (stall) {
        EXPECT_TRUE(stall->some >= 0.0 && stall->full <= 100.0);
    }
    parseZramMemory(text);
    parseLinkFlags(text);
    EXPECT_LE(parseCPUList(text).value_or(std::vector<int>()).size(), 65536u);
    EXPECT_NE(parseModelName(text), "");
    std::string_view datagram = text;
    while (takeLinkMessage(datagram)) {
    }
}

std::vector<std::filesystem::path> filesBelow(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

TEST(Garbage, NoParserStumbles) {
    Mutator mutator;
    for (const char* machine : {"laptop-hybrid-cores", "zram-in-use"}) {
        for (const auto& file : filesBelow(std::string(FIXTURES) + '/' + machine)) {
            const std::string text = contentOf(file);
            for (int i = 0; i < 1000; ++i)
                parseWithEverything(mutator.damaged(text));
        }
    }
}

/// The samplers end the program on sums past 64 bits, so no file may make a source hand out such numbers.
TEST(Garbage, NoFileEndsASamplingPass) {
    Mutator mutator;
    const TemporaryFolder folder;
    std::filesystem::copy(std::string(FIXTURES) + "/zram-in-use", folder.path("m"),
                          std::filesystem::copy_options::recursive);
    const auto sources = makeSamplingSources({folder.path("m/proc"), folder.path("m/sys")});
    CPUSampler cpu(*sources.cpu);
    MemorySampler memory(*sources.memory);
    NetworkSampler network(*sources.network, *sources.clock);
    DiskSampler disk(*sources.disks, *sources.volume, *sources.clock);
    for (const auto& file : filesBelow(folder.path("m"))) {
        const std::string text = contentOf(file);
        const auto name = std::filesystem::relative(file, folder.path("")).string();
        for (int i = 0; i < 400; ++i) {
            folder.write(name, mutator.damaged(text));
            if (const auto* sample = cpu.sample()) {
                EXPECT_GE(sample->total, 0.0);
                EXPECT_LE(sample->total, 1.0);
            }
            EXPECT_LE(usedFraction(memory.sample().value_or(MemorySample())), 1.0);
            network.sample();
            disk.sample();
        }
        folder.write(name, text);
    }
    EXPECT_TRUE(memory.sample().has_value()); // the files are whole again
    EXPECT_NE(cpu.sample(), nullptr);
}

TEST(Garbage, LongTextsAreTakenOrRefusedWhole) {
    const std::string nonsense[] = {std::string(3 << 20, '\n'), std::string(3 << 20, '9'), std::string(3 << 20, ':'),
                                    std::string(3 << 20, '\0'), std::string(3 << 20, ' ')};
    for (const std::string& text : nonsense)
        parseWithEverything(text);
}

} // namespace
} // namespace vantrix
