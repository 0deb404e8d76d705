#include "linux/network/nl80211_reader.h"

#include <cerrno>
#include <system_error>

#include <linux/nl80211.h>

#include "support/utf8.h"

namespace vantrix {
namespace {

using Received = NetlinkChannel::Received;

constexpr int datagramsPerAnswer = 1000;

std::string problemText(int error) {
    if (error == ENOENT)
        return "no nl80211 in this kernel";
    return "nl80211: " + std::generic_category().message(error);
}

} // namespace

void Nl80211Reader::read(int link, WiFiReading& reading) {
    int error = prepare(link);
    if (error == 0)
        error = readStation(reading);
    if (error != 0) {
        // The number in the questions may no longer be right, say after a driver was reloaded.
        channel_->close();
        family_ = 0;
        link_ = 0;
        reading.fail(problemText(error));
        return;
    }
    reading.noise = noise_;
    reading.ssid = ssid_;
    reading.problem.clear();
}

int Nl80211Reader::prepare(int link) {
    if (!channel_->open())
        return errno;
    if (family_ == 0) {
        auto question = nl80211FamilyQuestion();
        const int error = ask(question, [this](std::string_view attributes) {
            family_ = parseFamilyNumber(attributes).value_or(family_);
        });
        if (error != 0 || family_ == 0)
            return error != 0 ? error : EBADMSG;
    }
    if (link_ != link) {
        interfaceQuestion_ = nl80211Question(family_, NL80211_CMD_GET_INTERFACE, link, false);
        stationQuestion_ = nl80211Question(family_, NL80211_CMD_GET_STATION, link, true);
        surveyQuestion_ = nl80211Question(family_, NL80211_CMD_GET_SURVEY, link, true);
        scanQuestion_ = nl80211Question(family_, NL80211_CMD_GET_SCAN, link, true);
        link_ = link;
        readsUntilDetail_ = 0;
    }
    return 0;
}

int Nl80211Reader::readStation(WiFiReading& reading) {
    std::optional<WiFiStation> station;
    const int error = ask(stationQuestion_, [&](std::string_view attributes) {
        if (!station)
            station = parseStation(attributes);
    });
    if (error != 0)
        return error;
    if (!station || station->address != accessPoint_)
        readsUntilDetail_ = 0;
    accessPoint_ = station ? station->address : decltype(accessPoint_){};
    reading.signal = station ? station->signal : 0;
    reading.bitRate = station ? station->bitRate : 0.0;
    if (!station) {
        ssid_.clear();
        noise_ = 0;
    } else if (readsUntilDetail_ == 0) {
        readDetails();
        readsUntilDetail_ = readsPerDetail;
    }
    if (readsUntilDetail_ > 0)
        --readsUntilDetail_;
    return 0;
}

/// A driver may answer none of these.
void Nl80211Reader::readDetails() {
    ssid_.clear();
    noise_ = 0;
    const auto takeName = [this](std::optional<std::string_view> name) {
        if (name && ssid_.empty())
            ssid_ = repairedUTF8(*name);
    };
    ask(interfaceQuestion_, [&](std::string_view attributes) { takeName(parseInterfaceName(attributes)); });
    if (ssid_.empty())
        ask(scanQuestion_, [&](std::string_view attributes) { takeName(parseJoinedNetwork(attributes)); });
    ask(surveyQuestion_, [this](std::string_view attributes) { noise_ = parseNoise(attributes).value_or(noise_); });
}

/// Calls `take` with the attributes of each part of the answer. 0, or errno.
template<typename Take>
int Nl80211Reader::ask(std::string& question, Take take) {
    numberQuestion(question, ++sequence_);
    return channel_->send(question) ? hear(sequence_, take) : errno;
}

template<typename Take>
int Nl80211Reader::hear(std::uint32_t sequence, Take take) {
    std::string_view datagram;
    for (int i = 0; i < datagramsPerAnswer; ++i) {
        const auto received = channel_->receive(datagram);
        if (received != Received::datagram)
            return received == Received::failed ? errno : ENODATA;
        while (const auto answer = takeGenericAnswer(datagram)) {
            if (answer->sequence != sequence)
                continue;
            if (!answer->attributes.empty())
                take(answer->attributes);
            if (answer->kind != GenericAnswer::Kind::part)
                return answer->error;
        }
    }
    return EMSGSIZE;
}

} // namespace vantrix
