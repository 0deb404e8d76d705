#include "macos/simulated/machine.h"

namespace vantrix::simulated {
namespace {

CFMutableDictionaryRef IOReportCopyChannelsInGroup(CFStringRef group, CFStringRef, std::uint64_t, std::uint64_t,
                                                   std::uint64_t) {
    const bool isThere = text(group) == "Energy Model" && !fails();
    return as<CFMutableDictionaryRef>(isThere ? make(Dictionary()) : nullptr);
}

CFTypeRef IOReportCreateSubscription(void*, CFMutableDictionaryRef channels, CFMutableDictionaryRef* subscribed,
                                     std::uint64_t, CFTypeRef) {
    object(channels, Kind::dictionary);
    const Outcome outcome = outcomeOf();
    if (outcome == Outcome::works)
        *subscribed = as<CFMutableDictionaryRef>(make(Dictionary())); // else a subscription without channels
    return outcome == Outcome::fails ? nullptr : makeOpaque();
}

CFDictionaryRef IOReportCreateSamples(CFTypeRef subscription, CFMutableDictionaryRef channels, CFTypeRef) {
    object(subscription, Kind::opaque);
    object(channels, Kind::dictionary);
    return as<CFDictionaryRef>(fails() ? nullptr : makeOpaque({{"number", mac().energySnapshots++}}));
}

std::int64_t numberOf(CFDictionaryRef snapshot) {
    return std::get<std::int64_t>(object(snapshot, Kind::opaque).at("number")->value);
}

CFDictionaryRef IOReportCreateSamplesDelta(CFDictionaryRef before, CFDictionaryRef now, CFTypeRef) {
    const bool isStep = numberOf(now) == numberOf(before) + 1;
    if (!isStep || fails())
        return nullptr;
    return as<CFDictionaryRef>(make(Dictionary{{"IOReportChannels", *mac().energy}}));
}

CFStringRef IOReportChannelGetGroup(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("group")));
}

CFStringRef IOReportChannelGetChannelName(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("name")));
}

CFStringRef IOReportChannelGetUnitLabel(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("unit")));
}

std::int64_t IOReportSimpleGetIntegerValue(CFDictionaryRef channel, std::int32_t) {
    return std::get<std::int64_t>(object(channel, Kind::dictionary).at("value")->value);
}

} // namespace

Functions& energyFunctions() {
    static Functions functions{
        {"IOReportCopyChannelsInGroup", reinterpret_cast<void*>(IOReportCopyChannelsInGroup)},
        {"IOReportCreateSubscription", reinterpret_cast<void*>(IOReportCreateSubscription)},
        {"IOReportCreateSamples", reinterpret_cast<void*>(IOReportCreateSamples)},
        {"IOReportCreateSamplesDelta", reinterpret_cast<void*>(IOReportCreateSamplesDelta)},
        {"IOReportChannelGetGroup", reinterpret_cast<void*>(IOReportChannelGetGroup)},
        {"IOReportChannelGetChannelName", reinterpret_cast<void*>(IOReportChannelGetChannelName)},
        {"IOReportChannelGetUnitLabel", reinterpret_cast<void*>(IOReportChannelGetUnitLabel)},
        {"IOReportSimpleGetIntegerValue", reinterpret_cast<void*>(IOReportSimpleGetIntegerValue)},
    };
    return functions;
}

} // namespace vantrix::simulated
