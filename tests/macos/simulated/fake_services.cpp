#include <IOKit/ps/IOPowerSources.h>
#include <Security/SecCode.h>
#include <Security/SecTask.h>
#include <SystemConfiguration/SystemConfiguration.h>

#include "macos/network/location_manager.h"
#include "macos/simulated/machine.h"

using namespace vantrix::simulated;

const CFStringRef kSecCodeInfoCertificates = CFSTR("certificates");
const CFStringRef kSCNetworkInterfaceTypeEthernet = CFSTR("Ethernet");
const CFStringRef kSCNetworkInterfaceTypeIEEE80211 = CFSTR("IEEE80211");

namespace {

CFStringRef partOf(CFTypeRef owner, const char* part, const char* function = __builtin_FUNCTION()) {
    const Object* const held = object(owner, Kind::opaque, function).at(part);
    return as<CFStringRef>(fails(function) ? nullptr : held);
}

} // namespace

CFTypeRef IOPSCopyPowerSourcesInfo() {
    leaveToPool();
    return mac().powerSources && !fails() ? makeOpaque({{"sources", *mac().powerSources}}) : nullptr;
}

CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob) {
    return as<CFArrayRef>(answer(retain(object(blob, Kind::opaque).at("sources"))));
}

CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef source) {
    object(blob, Kind::opaque);
    return as<CFDictionaryRef>(heldAnswer(&object(source)));
}

SCDynamicStoreRef SCDynamicStoreCreate(CFAllocatorRef, CFStringRef name, SCDynamicStoreCallBack,
                                       SCDynamicStoreContext*) {
    const bool isThere = text(name) == "Vantrix" && !mac().store.empty() && !fails();
    return as<SCDynamicStoreRef>(isThere ? makeOpaque() : nullptr);
}

CFPropertyListRef SCDynamicStoreCopyValue(SCDynamicStoreRef store, CFStringRef key) {
    object(store, Kind::opaque);
    const auto found = mac().store.find(text(key));
    return answer(found == mac().store.end() ? nullptr : make(found->second));
}

CFArrayRef SCNetworkInterfaceCopyAll() {
    leaveToPool();
    return as<CFArrayRef>(fails() ? nullptr : makeOpaqueList(mac().interfaces));
}

CFStringRef SCNetworkInterfaceGetBSDName(SCNetworkInterfaceRef interface) {
    return partOf(interface, "name");
}

CFStringRef SCNetworkInterfaceGetInterfaceType(SCNetworkInterfaceRef interface) {
    return partOf(interface, "type");
}

CFStringRef SCNetworkInterfaceGetLocalizedDisplayName(SCNetworkInterfaceRef interface) {
    return partOf(interface, "displayName");
}

SecTaskRef SecTaskCreateFromSelf(CFAllocatorRef) {
    return as<SecTaskRef>(fails() ? nullptr : makeOpaque());
}

CFTypeRef SecTaskCopyValueForEntitlement(SecTaskRef task, CFStringRef entitlement, CFErrorRef*) {
    object(task, Kind::opaque);
    const bool isThere = text(entitlement) == "com.apple.security.application-groups" && mac().applicationGroups;
    return answer(isThere ? make(*mac().applicationGroups) : nullptr);
}

OSStatus SecCodeCopySelf(SecCSFlags, SecCodeRef* self) {
    *self = as<SecCodeRef>(fails() ? nullptr : makeOpaque());
    return *self ? errSecSuccess : -1;
}

OSStatus SecCodeCopySigningInformation(SecStaticCodeRef code, SecCSFlags flags, CFDictionaryRef* information) {
    object(code, Kind::opaque);
    const bool isAsked = flags == kSecCSSigningInformation;
    *information = as<CFDictionaryRef>(answer(isAsked && mac().signature ? make(*mac().signature) : nullptr));
    return *information ? errSecSuccess : -1;
}

namespace vantrix {
namespace {

struct SimulatedWiFiClient : WiFiClient {
    std::optional<Details> read(std::string_view name) override {
        const auto found = mac().wifi.find(name);
        return found == mac().wifi.end() || fails("readWiFi") ? std::nullopt : std::optional(found->second);
    }
    void renew() override {}
};

} // namespace

std::unique_ptr<WiFiClient> makeWiFiClient() {
    return fails() ? nullptr : std::make_unique<SimulatedWiFiClient>();
}

std::unique_ptr<LocationManager> makeLocationManager() {
    ++mac().calls["makeLocationManager"];
    return nullptr;
}

} // namespace vantrix
