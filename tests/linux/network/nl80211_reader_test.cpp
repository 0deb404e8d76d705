#include "linux/network/nl80211_reader.h"

#include <cerrno>
#include <map>
#include <vector>

#include <linux/genetlink.h>
#include <linux/nl80211.h>

#include <gtest/gtest.h>

#include "linux/network/netlink_datagram.h"

namespace vantrix {
namespace {

constexpr int family = 28;
constexpr int link = 3;

std::string station(const std::string& info, std::string_view address = "\x02\x00\x00\x00\x00\x01") {
    return numberAttribute(NL80211_ATTR_IFINDEX, link) + attribute(NL80211_ATTR_MAC, address.substr(0, 6)) +
           attribute(NL80211_ATTR_STA_INFO | NLA_F_NESTED, info);
}

std::string signal(int type, int level) {
    return numberAttribute(type, static_cast<std::int8_t>(level));
}

template<typename Number>
std::string bitRate(int type, Number rate) {
    return attribute(NL80211_STA_INFO_TX_BITRATE | NLA_F_NESTED, numberAttribute(type, rate));
}

const std::string usualStation =
    station(signal(NL80211_STA_INFO_SIGNAL, -52) + bitRate(NL80211_RATE_INFO_BITRATE, std::uint16_t{8665}));

std::string survey(int noise, bool isInUse) {
    return attribute(NL80211_ATTR_SURVEY_INFO | NLA_F_NESTED,
                     (isInUse ? attribute(NL80211_SURVEY_INFO_IN_USE, {}) : std::string()) +
                         signal(NL80211_SURVEY_INFO_NOISE, noise));
}

std::string network(std::string_view elements, int status) {
    return attribute(NL80211_ATTR_BSS | NLA_F_NESTED, attribute(NL80211_BSS_INFORMATION_ELEMENTS, elements) +
                                                          numberAttribute(NL80211_BSS_STATUS, status));
}

TEST(ParseStation, TakesSignalAndRateWhereTheyMakeSense) {
    struct Row {
        const char* name;
        std::string info;
        int signal;
        double rate;
    };
    const Row rows[] = {
        {"rate past 16 bits", bitRate(NL80211_RATE_INFO_BITRATE32, 115294), 0, 11529.4},
        {"old driver", signal(NL80211_STA_INFO_SIGNAL_AVG, -61), -61, 0.0},
        {"strength in percent", signal(NL80211_STA_INFO_SIGNAL, 70), 0, 0.0},
    };
    for (const Row& row : rows) {
        const auto parsed = parseStation(station(row.info));
        ASSERT_TRUE(parsed) << row.name;
        EXPECT_EQ(parsed->signal, row.signal) << row.name;
        EXPECT_DOUBLE_EQ(parsed->bitRate, row.rate) << row.name;
    }
    constexpr std::uint32_t peer = 1u << NL80211_STA_FLAG_TDLS_PEER;
    EXPECT_FALSE(parseStation(
        station(numberAttribute(NL80211_STA_INFO_STA_FLAGS, nl80211_sta_flag_update{.mask = peer, .set = peer}))));
}

TEST(ParseJoinedNetwork, FindsTheNameOfTheNetworkJoined) {
    using namespace std::string_view_literals;
    const auto name = "\x01\x02\x82\x84\x00\x04Home\x03\x01\x06"sv;
    EXPECT_EQ(parseJoinedNetwork(network(name, NL80211_BSS_STATUS_ASSOCIATED)), "Home");
    EXPECT_FALSE(parseJoinedNetwork(network(name, NL80211_BSS_STATUS_AUTHENTICATED)));
    for (const auto elements : {"\x00\x00"sv, "\x00\x09Home"sv, "\x00\x21Home and a name past 32 letters.."sv})
        EXPECT_FALSE(parseJoinedNetwork(network(elements, NL80211_BSS_STATUS_ASSOCIATED))) << elements;
}

/// A kernel that answers from a list of attributes for each command.
struct FakeKernel : FakeNetlink {
    std::map<int, std::vector<std::string>> answers; // by NL80211_CMD_GET_…
    std::map<int, int> errors;
    std::map<int, int> questions;
    bool isMute = false;
    bool send(std::string_view question) override {
        const auto taken = takeNetlinkMessage(question);
        const int command = recordAt<genlmsghdr>(taken->body)->cmd;
        tell(message(family, "a stray answer", 0, taken->header.nlmsg_seq - 1));
        if (!isMute)
            answer(taken->header, command);
        return true;
    }

    void answer(const nlmsghdr& header, int command) {
        if (header.nlmsg_type == GENL_ID_CTRL)
            return answerFamily(header.nlmsg_seq);
        EXPECT_EQ(header.nlmsg_type, family);
        ++questions[command];
        if (const int error = errors[command]; error != 0)
            return tell(message(NLMSG_ERROR, bytesOf(nlmsgerr{-error, {}}), 0, header.nlmsg_seq));
        const bool isDump = (header.nlmsg_flags & NLM_F_DUMP) != 0;
        for (const std::string& attributes : answers[command])
            tell(message(family, bytesOf(genlmsghdr{}) + attributes, isDump ? NLM_F_MULTI : 0, header.nlmsg_seq));
        if (isDump)
            tell(message(NLMSG_DONE, bytesOf(0), NLM_F_MULTI, header.nlmsg_seq));
    }

    void answerFamily(std::uint32_t sequence) {
        tell(message(GENL_ID_CTRL,
                     bytesOf(genlmsghdr{CTRL_CMD_NEWFAMILY, 2, 0}) +
                         numberAttribute(CTRL_ATTR_FAMILY_ID, static_cast<std::uint16_t>(family)),
                     0, sequence));
    }
};

struct Nl80211ReaderTest : ::testing::Test {
    FakeKernel* kernel = new FakeKernel;
    Nl80211Reader reader{std::unique_ptr<NetlinkChannel>(kernel)};
    const WiFiReading home{-52, -92, 866.5, "Home", ""};

    Nl80211ReaderTest() {
        kernel->answers[NL80211_CMD_GET_INTERFACE] = {attribute(NL80211_ATTR_SSID, "Home")};
        kernel->answers[NL80211_CMD_GET_STATION] = {usualStation};
        kernel->answers[NL80211_CMD_GET_SURVEY] = {survey(-80, false), survey(-92, true), survey(-70, false)};
    }

    WiFiReading read() {
        WiFiReading reading{1, 2, 3.0, "left over", "left over"};
        reader.read(link, reading);
        return reading;
    }
};

TEST_F(Nl80211ReaderTest, AsksForTheSignalEachTimeAndForTheRestNowAndThen) {
    for (int i = 0; i < Nl80211Reader::readsPerDetail; ++i)
        EXPECT_EQ(read(), home);
    EXPECT_EQ(kernel->questions[NL80211_CMD_GET_STATION], Nl80211Reader::readsPerDetail);
    EXPECT_EQ(kernel->questions[NL80211_CMD_GET_SURVEY], 1);
    EXPECT_EQ(kernel->questions[NL80211_CMD_GET_SCAN], 0);
    read();
    EXPECT_EQ(kernel->questions[NL80211_CMD_GET_SURVEY], 2);
}

TEST_F(Nl80211ReaderTest, AnotherAccessPointBringsAnotherName) {
    read();
    kernel->answers[NL80211_CMD_GET_STATION] = {};
    EXPECT_EQ(read(), WiFiReading());
    kernel->answers[NL80211_CMD_GET_INTERFACE] = {};
    kernel->answers[NL80211_CMD_GET_SCAN] = {network("\1\1\2", 1), network({"\0\4Caf\xe9", 6}, 1)};
    kernel->answers[NL80211_CMD_GET_STATION] = {station(signal(NL80211_STA_INFO_SIGNAL, -60), "\x02zzzzz")};
    EXPECT_EQ(read(), (WiFiReading{-60, -92, 0.0, "Caf\xef\xbf\xbd", ""}));
}

TEST_F(Nl80211ReaderTest, TellsWhyThereIsNothing) {
    kernel->errors[NL80211_CMD_GET_STATION] = EPERM;
    EXPECT_EQ(read(), WiFiReading{.problem = "nl80211: Operation not permitted"});
    kernel->errors.clear();
    kernel->isMute = true;
    EXPECT_EQ(read(), WiFiReading{.problem = "nl80211: No data available"});
    EXPECT_EQ(kernel->closings, 2); // what may still come is no answer to the next question
    kernel->isMute = false;
    kernel->errors[NL80211_CMD_GET_SURVEY] = EOPNOTSUPP;
    EXPECT_EQ(read(), (WiFiReading{-52, 0, 866.5, "Home", ""}));
}

} // namespace
} // namespace vantrix
