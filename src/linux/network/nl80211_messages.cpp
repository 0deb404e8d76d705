#include "linux/network/nl80211_messages.h"

#include <cstring>
#include <memory>

#include <linux/genetlink.h>
#include <linux/nl80211.h>
#include <netlink/attr.h>
#include <netlink/genl/genl.h>
#include <netlink/msg.h>

#include "linux/kernel/netlink_records.h"

namespace vantrix {
namespace {

constexpr std::uint8_t nl80211Version = 0;
constexpr std::uint8_t controllerVersion = 1;
constexpr std::size_t longestNetworkName = 32;
constexpr char networkNameElement = 0;

using Message = std::unique_ptr<nl_msg, decltype(&nlmsg_free)>;

std::string bytesOf(nl_msg* message) {
    const nlmsghdr* header = nlmsg_hdr(message);
    return {reinterpret_cast<const char*>(header), header->nlmsg_len};
}

/// Attributes by their type; those that are not of the kind in the table make the whole absent.
class Attributes {
  public:
    template<std::size_t count>
    Attributes(std::string_view bytes, const std::array<nla_policy, count>& kinds) {
        static_assert(count <= std::tuple_size_v<decltype(found_)>);
        // The library never writes to what it parses.
        auto* first = reinterpret_cast<nlattr*>(const_cast<char*>(bytes.data()));
        if (nla_parse(found_.data(), int{count} - 1, first, static_cast<int>(bytes.size()), kinds.data()) < 0)
            found_.fill(nullptr);
    }

    bool has(int type) const { return at(type) != nullptr; }

    std::string_view bytes(int type) const {
        const nlattr* attribute = at(type);
        if (attribute == nullptr)
            return {};
        return {static_cast<const char*>(nla_data(attribute)), static_cast<std::size_t>(nla_len(attribute))};
    }

    template<typename Value>
    std::optional<Value> value(int type) const {
        return recordAt<Value>(bytes(type));
    }

  private:
    nlattr* at(int type) const { return found_[static_cast<std::size_t>(type)]; }

    std::array<nlattr*, NL80211_ATTR_MAX + 1> found_{}; // the longest table of all
};

template<int last>
constexpr auto kindsOf(std::initializer_list<std::pair<int, std::uint16_t>> pairs) {
    std::array<nla_policy, last + 1> kinds{};
    for (const auto& [type, kind] : pairs)
        kinds[static_cast<std::size_t>(type)].type = kind;
    return kinds;
}

Attributes parseTop(std::string_view attributes) {
    static constexpr auto kinds = kindsOf<NL80211_ATTR_MAX>({{NL80211_ATTR_SSID, NLA_UNSPEC},
                                                             {NL80211_ATTR_STA_INFO, NLA_NESTED},
                                                             {NL80211_ATTR_SURVEY_INFO, NLA_NESTED},
                                                             {NL80211_ATTR_BSS, NLA_NESTED}});
    return {attributes, kinds};
}

std::optional<std::string_view> unlessOdd(std::string_view name) {
    if (name.empty() || name.size() > longestNetworkName)
        return std::nullopt;
    return name;
}

double parseBitRate(std::string_view attributes) {
    static constexpr auto kinds =
        kindsOf<NL80211_RATE_INFO_MAX>({{NL80211_RATE_INFO_BITRATE, NLA_U16}, {NL80211_RATE_INFO_BITRATE32, NLA_U32}});
    const Attributes rate(attributes, kinds);
    const auto hundredKilobits = rate.value<std::uint32_t>(NL80211_RATE_INFO_BITRATE32)
                                     .value_or(rate.value<std::uint16_t>(NL80211_RATE_INFO_BITRATE).value_or(0));
    return hundredKilobits / 10.0;
}

/// A level in dBm is below zero; drivers that tell in other units give positive numbers.
int unlessPositive(std::optional<std::int8_t> level) {
    return level && *level < 0 ? *level : 0;
}

} // namespace

std::optional<GenericAnswer> takeGenericAnswer(std::string_view& datagram) {
    const auto taken = takeNetlinkMessage(datagram);
    if (!taken)
        return std::nullopt;
    GenericAnswer answer;
    answer.sequence = taken->header.nlmsg_seq;
    if (taken->header.nlmsg_type == NLMSG_ERROR) {
        answer.error = errorNumber(taken->body);
        answer.kind = answer.error != 0 ? GenericAnswer::Kind::failed : GenericAnswer::Kind::done;
    } else if (taken->header.nlmsg_type != NLMSG_DONE) {
        const bool isOneOfMany = (taken->header.nlmsg_flags & NLM_F_MULTI) != 0;
        answer.kind = isOneOfMany ? GenericAnswer::Kind::part : GenericAnswer::Kind::last;
        answer.attributes = attributesAfter<genlmsghdr>(taken->body);
    }
    return answer;
}

std::string nl80211FamilyQuestion() {
    const Message message(nlmsg_alloc(), nlmsg_free);
    if (!message || genlmsg_put(message.get(), 0, 0, GENL_ID_CTRL, 0, NLM_F_REQUEST, CTRL_CMD_GETFAMILY,
                                controllerVersion) == nullptr)
        return {};
    if (nla_put_string(message.get(), CTRL_ATTR_FAMILY_NAME, NL80211_GENL_NAME) < 0)
        return {};
    return bytesOf(message.get());
}

std::string nl80211Question(std::uint16_t family, std::uint8_t command, int link, bool isDump) {
    const Message message(nlmsg_alloc(), nlmsg_free);
    const int flags = NLM_F_REQUEST | (isDump ? NLM_F_DUMP : 0);
    if (!message || genlmsg_put(message.get(), 0, 0, family, 0, flags, command, nl80211Version) == nullptr)
        return {};
    if (nla_put_u32(message.get(), NL80211_ATTR_IFINDEX, static_cast<std::uint32_t>(link)) < 0)
        return {};
    return bytesOf(message.get());
}

void numberQuestion(std::string& question, std::uint32_t sequence) {
    constexpr std::size_t place = offsetof(nlmsghdr, nlmsg_seq);
    if (question.size() >= sizeof(nlmsghdr))
        std::memcpy(question.data() + place, &sequence, sizeof sequence);
}

std::optional<std::uint16_t> parseFamilyNumber(std::string_view attributes) {
    static constexpr auto kinds = kindsOf<CTRL_ATTR_MAX>({{CTRL_ATTR_FAMILY_ID, NLA_U16}});
    return Attributes(attributes, kinds).value<std::uint16_t>(CTRL_ATTR_FAMILY_ID);
}

std::optional<std::string_view> parseInterfaceName(std::string_view attributes) {
    return unlessOdd(parseTop(attributes).bytes(NL80211_ATTR_SSID));
}

std::optional<WiFiStation> parseStation(std::string_view attributes) {
    static constexpr auto kinds = kindsOf<NL80211_STA_INFO_MAX>({{NL80211_STA_INFO_SIGNAL, NLA_U8},
                                                                 {NL80211_STA_INFO_SIGNAL_AVG, NLA_U8},
                                                                 {NL80211_STA_INFO_TX_BITRATE, NLA_NESTED}});
    const auto top = parseTop(attributes);
    if (!top.has(NL80211_ATTR_STA_INFO))
        return std::nullopt;
    const Attributes info(top.bytes(NL80211_ATTR_STA_INFO), kinds);
    const auto flags = info.value<nl80211_sta_flag_update>(NL80211_STA_INFO_STA_FLAGS);
    if (flags && (flags->mask & flags->set & (1u << NL80211_STA_FLAG_TDLS_PEER)) != 0)
        return std::nullopt;
    WiFiStation station;
    station.address = top.value<decltype(station.address)>(NL80211_ATTR_MAC).value_or(station.address);
    station.signal = unlessPositive(info.value<std::int8_t>(NL80211_STA_INFO_SIGNAL));
    if (station.signal == 0)
        station.signal = unlessPositive(info.value<std::int8_t>(NL80211_STA_INFO_SIGNAL_AVG));
    station.bitRate = parseBitRate(info.bytes(NL80211_STA_INFO_TX_BITRATE));
    return station;
}

std::optional<int> parseNoise(std::string_view attributes) {
    static constexpr auto kinds = kindsOf<NL80211_SURVEY_INFO_MAX>({{NL80211_SURVEY_INFO_NOISE, NLA_U8}});
    const auto top = parseTop(attributes);
    const Attributes info(top.bytes(NL80211_ATTR_SURVEY_INFO), kinds);
    if (!info.has(NL80211_SURVEY_INFO_IN_USE))
        return std::nullopt;
    return unlessPositive(info.value<std::int8_t>(NL80211_SURVEY_INFO_NOISE));
}

std::optional<std::string_view> parseJoinedNetwork(std::string_view attributes) {
    static constexpr auto kinds = kindsOf<NL80211_BSS_MAX>({{NL80211_BSS_STATUS, NLA_U32}});
    const auto top = parseTop(attributes);
    const Attributes network(top.bytes(NL80211_ATTR_BSS), kinds);
    if (network.value<std::uint32_t>(NL80211_BSS_STATUS) != NL80211_BSS_STATUS_ASSOCIATED)
        return std::nullopt;
    auto elements = network.bytes(NL80211_BSS_INFORMATION_ELEMENTS);
    while (elements.size() >= 2) {
        const std::size_t length = static_cast<unsigned char>(elements[1]);
        if (length + 2 > elements.size())
            break;
        if (elements[0] == networkNameElement)
            return unlessOdd(elements.substr(2, length));
        elements.remove_prefix(length + 2);
    }
    return std::nullopt;
}

} // namespace vantrix
