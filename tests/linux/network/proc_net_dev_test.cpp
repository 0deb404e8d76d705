#include "linux/network/proc_net_dev.h"

#include <gmock/gmock.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Field;
using Counters = NetworkSampler::Counters;

auto line(const char* name, std::optional<Counters> counters) {
    return AllOf(Field(&NetDevLine::name, name), Field(&NetDevLine::counters, counters));
}

TEST(ParseNetDev, TakesOddNamesAndWholeCounters) {
    std::vector<NetDevLine> lines;
    ASSERT_TRUE(parseNetDev("Inter-|   Receive  |  Transmit\n face |bytes packets|bytes\n"
                            "  eth0: 10 1 2 3 4 5 6 7 20 0\n"
                            "enx0123456789ab: 4294967297 1 2 3 4 5 6 7 8589934595 0\n"
                            "  bad0: 1 2 3\n"
                            "  bad1: 1 1 2 3 4 5 6 7 99999999999999999999999 0\n"
                            ":\n",
                            lines));
    EXPECT_THAT(lines,
                ElementsAre(line("eth0", Counters{10, 20}), line("enx0123456789ab", Counters{4294967297, 8589934595}),
                            line("bad0", std::nullopt), line("bad1", std::nullopt), line("", std::nullopt)));
    EXPECT_FALSE(parseNetDev("  eth0: 10 1 2 3 4 5 6 7 20", lines)) << "cut short";
}

struct FakeStates : LinkStates {
    bool works;
    std::uint32_t flags;

    FakeStates(bool doesWork, std::uint32_t someFlags) : works(doesWork), flags(someFlags) {}
    bool refresh() override { return works; }
    LinkState state(std::string_view, std::size_t) override { return {.isHardware = true, .flags = flags, .index = 7}; }
};

TEST(NetDevSource, TurnsToTheOtherWayOfKnowingLinksForGood) {
    const TemporaryFolder folder;
    folder.write("dev", "  eth0: 10 1 2 3 4 5 6 7 20 0\n");
    auto first = std::make_unique<FakeStates>(true, 1u);
    FakeStates& states = *first;
    NetDevSource source(folder.path("dev"), std::move(first), std::make_unique<FakeStates>(true, 2u));
    std::vector<NetworkSampler::Link> links;
    ASSERT_TRUE(source.read(links));
    states.works = false;
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(source.read(links));
        EXPECT_EQ(links[0].flags, 2u);
        EXPECT_EQ(links[0].name, "eneth0");
        EXPECT_TRUE(links[0].isNamedAnew);
        EXPECT_EQ(links[0].index, 7) << "tells it from another that takes its name";
    }
}

} // namespace
} // namespace vantrix
