#pragma once

// The part of SystemConfiguration that the program uses, by its documented interface.

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef const struct __SCDynamicStore* SCDynamicStoreRef;
typedef const struct __SCNetworkInterface* SCNetworkInterfaceRef;

struct SCDynamicStoreContext;
typedef void (*SCDynamicStoreCallBack)(SCDynamicStoreRef store, CFArrayRef changedKeys, void* info);

SCDynamicStoreRef SCDynamicStoreCreate(CFAllocatorRef allocator, CFStringRef name, SCDynamicStoreCallBack callout,
                                       SCDynamicStoreContext* context);
CFPropertyListRef SCDynamicStoreCopyValue(SCDynamicStoreRef store, CFStringRef key);

extern const CFStringRef kSCNetworkInterfaceTypeEthernet;
extern const CFStringRef kSCNetworkInterfaceTypeIEEE80211;

CFArrayRef SCNetworkInterfaceCopyAll(void);
CFStringRef SCNetworkInterfaceGetBSDName(SCNetworkInterfaceRef interface);
CFStringRef SCNetworkInterfaceGetInterfaceType(SCNetworkInterfaceRef interface);
CFStringRef SCNetworkInterfaceGetLocalizedDisplayName(SCNetworkInterfaceRef interface);

} // extern "C"
