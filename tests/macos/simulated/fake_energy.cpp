#include "macos/simulated/machine.h"

namespace vantrix::simulated {
namespace {

using Kind = Object::Kind;

CFMutableDictionaryRef copyChannels(CFStringRef group, CFStringRef subgroup, std::uint64_t, std::uint64_t,
                                    std::uint64_t) {
    const bool isEnergy = object(group, Kind::text, "IOReportCopyChannelsInGroup").text == "Energy Model" && !subgroup;
    const bool isThere = isEnergy && !fails("IOReportCopyChannelsInGroup");
    return as<CFMutableDictionaryRef>(isThere ? make(Dictionary()) : nullptr);
}

CFTypeRef createSubscription(void*, CFMutableDictionaryRef channels, CFMutableDictionaryRef* subscribed, std::uint64_t,
                             CFTypeRef) {
    object(channels, Kind::dictionary, "IOReportCreateSubscription");
    const Outcome outcome = outcomeOf("IOReportCreateSubscription");
    if (outcome == Outcome::fails)
        return nullptr;
    if (outcome == Outcome::works)
        *subscribed = as<CFMutableDictionaryRef>(make(Dictionary())); // else a subscription without channels
    return makeOpaque();
}

CFDictionaryRef createSamples(CFTypeRef subscription, CFMutableDictionaryRef channels, CFTypeRef) {
    object(subscription, Kind::opaque, "IOReportCreateSamples");
    object(channels, Kind::dictionary, "IOReportCreateSamples");
    const bool isTaken = !fails("IOReportCreateSamples");
    return as<CFDictionaryRef>(isTaken ? makeOpaque(mac().energySnapshots++) : nullptr);
}

std::int64_t numberOf(CFDictionaryRef snapshot) {
    return object(snapshot, Kind::opaque, "IOReportCreateSamplesDelta").whole;
}

CFDictionaryRef createDelta(CFDictionaryRef before, CFDictionaryRef now, CFTypeRef) {
    const bool isStep = numberOf(now) == numberOf(before) + 1;
    if (!isStep || fails("IOReportCreateSamplesDelta"))
        return nullptr;
    return as<CFDictionaryRef>(make(Dictionary{{"IOReportChannels", *mac().energy}}));
}

CFStringRef partOf(CFDictionaryRef channel, const char* part, const char* function) {
    return as<CFStringRef>(heldAnswer(function, object(channel, Kind::dictionary, function).at(part)));
}

CFStringRef groupOf(CFDictionaryRef channel) {
    return partOf(channel, "group", "IOReportChannelGetGroup");
}

CFStringRef nameOf(CFDictionaryRef channel) {
    return partOf(channel, "name", "IOReportChannelGetChannelName");
}

CFStringRef unitOf(CFDictionaryRef channel) {
    return partOf(channel, "unit", "IOReportChannelGetUnitLabel");
}

std::int64_t valueOf(CFDictionaryRef channel, std::int32_t index) {
    return index == 0 ? object(channel, Kind::dictionary, "IOReportSimpleGetIntegerValue").at("value")->whole : 0;
}

} // namespace

Functions& energyFunctions() {
    static Functions functions{
        {"IOReportCopyChannelsInGroup", reinterpret_cast<void*>(copyChannels)},
        {"IOReportCreateSubscription", reinterpret_cast<void*>(createSubscription)},
        {"IOReportCreateSamples", reinterpret_cast<void*>(createSamples)},
        {"IOReportCreateSamplesDelta", reinterpret_cast<void*>(createDelta)},
        {"IOReportChannelGetGroup", reinterpret_cast<void*>(groupOf)},
        {"IOReportChannelGetChannelName", reinterpret_cast<void*>(nameOf)},
        {"IOReportChannelGetUnitLabel", reinterpret_cast<void*>(unitOf)},
        {"IOReportSimpleGetIntegerValue", reinterpret_cast<void*>(valueOf)},
    };
    return functions;
}

} // namespace vantrix::simulated
