#include <IOKit/ps/IOPowerSources.h>
#include <Security/SecTask.h>
#include <SystemConfiguration/SystemConfiguration.h>

#include "macos/network/location_manager.h"
#include "macos/simulated/machine.h"

using namespace vantrix::simulated;
using Kind = Object::Kind;

const CFStringRef kSCNetworkInterfaceTypeEthernet = CFSTR("Ethernet");
const CFStringRef kSCNetworkInterfaceTypeIEEE80211 = CFSTR("IEEE80211");

namespace {

/// An object of the system's own that holds others.
Object* makeOwner(const Dictionary& parts) {
    Object* const owner = make(parts);
    owner->kind = Kind::opaque;
    return owner;
}

CFStringRef partOf(CFTypeRef owner, const char* part, const char* function) {
    const Object* const held = object(owner, Kind::opaque, function).at(part);
    return as<CFStringRef>(fails(function) ? nullptr : held);
}

} // namespace

CFTypeRef IOPSCopyPowerSourcesInfo() {
    leaveToPool();
    const bool isTold = mac().powerSources && !fails("IOPSCopyPowerSourcesInfo");
    return isTold ? makeOwner({{"descriptions", *mac().powerSources}}) : nullptr;
}

CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob) {
    const Object& owner = object(blob, Kind::opaque, "IOPSCopyPowerSourcesList");
    std::vector<Ref> sources;
    for (std::size_t i = 0; i < owner.entries.at("descriptions").get()->list.size(); ++i)
        sources.emplace_back(makeOpaque(static_cast<std::int64_t>(i)));
    return as<CFArrayRef>(answer("IOPSCopyPowerSourcesList", makeList(std::move(sources))));
}

CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef source) {
    const auto place = object(source, Kind::opaque, "IOPSGetPowerSourceDescription").whole;
    const Object& owner = object(blob, Kind::opaque, "IOPSGetPowerSourceDescription");
    const Ref& held = owner.entries.at("descriptions").get()->list.at(static_cast<std::size_t>(place));
    return as<CFDictionaryRef>(heldAnswer("IOPSGetPowerSourceDescription", held.get()));
}

SCDynamicStoreRef SCDynamicStoreCreate(CFAllocatorRef, CFStringRef name, SCDynamicStoreCallBack,
                                       SCDynamicStoreContext*) {
    const bool isNamed = object(name, Kind::text, "SCDynamicStoreCreate").text == "Vantrix";
    const bool isThere = isNamed && !mac().store.empty() && !fails("SCDynamicStoreCreate");
    return as<SCDynamicStoreRef>(isThere ? makeOpaque() : nullptr);
}

CFPropertyListRef SCDynamicStoreCopyValue(SCDynamicStoreRef store, CFStringRef key) {
    object(store, Kind::opaque, "SCDynamicStoreCopyValue");
    const auto found = mac().store.find(object(key, Kind::text, "SCDynamicStoreCopyValue").text);
    return answer("SCDynamicStoreCopyValue", found == mac().store.end() ? nullptr : make(found->second));
}

CFArrayRef SCNetworkInterfaceCopyAll() {
    leaveToPool();
    if (fails("SCNetworkInterfaceCopyAll"))
        return nullptr;
    std::vector<Ref> all;
    for (const Interface& interface : mac().interfaces)
        all.emplace_back(
            makeOwner({{"name", interface.name}, {"type", interface.type}, {"displayName", interface.displayName}}));
    return as<CFArrayRef>(makeList(std::move(all)));
}

CFStringRef SCNetworkInterfaceGetBSDName(SCNetworkInterfaceRef interface) {
    return partOf(interface, "name", "SCNetworkInterfaceGetBSDName");
}

CFStringRef SCNetworkInterfaceGetInterfaceType(SCNetworkInterfaceRef interface) {
    return partOf(interface, "type", "SCNetworkInterfaceGetInterfaceType");
}

CFStringRef SCNetworkInterfaceGetLocalizedDisplayName(SCNetworkInterfaceRef interface) {
    return partOf(interface, "displayName", "SCNetworkInterfaceGetLocalizedDisplayName");
}

SecTaskRef SecTaskCreateFromSelf(CFAllocatorRef) {
    return as<SecTaskRef>(fails("SecTaskCreateFromSelf") ? nullptr : makeOpaque());
}

CFTypeRef SecTaskCopyValueForEntitlement(SecTaskRef task, CFStringRef entitlement, CFErrorRef*) {
    object(task, Kind::opaque, "SecTaskCopyValueForEntitlement");
    const bool isGroups = object(entitlement, Kind::text, "SecTaskCopyValueForEntitlement").text ==
                          "com.apple.security.application-groups";
    const bool isThere = isGroups && mac().applicationGroups;
    return answer("SecTaskCopyValueForEntitlement", isThere ? make(*mac().applicationGroups) : nullptr);
}

namespace vantrix {
namespace {

class SimulatedWiFiClient : public WiFiClient {
  public:
    std::optional<Details> read(std::string_view name) override {
        const auto found = mac().wifi.find(name);
        return found == mac().wifi.end() || fails("readWiFi") ? std::nullopt : std::optional(found->second);
    }
    void renew() override { outcomeOf("renewWiFi"); }
};

} // namespace

std::unique_ptr<WiFiClient> makeWiFiClient() {
    return fails("makeWiFiClient") ? nullptr : std::make_unique<SimulatedWiFiClient>();
}

std::unique_ptr<LocationManager> makeLocationManager() {
    ++mac().calls["makeLocationManager"];
    return nullptr;
}

} // namespace vantrix
