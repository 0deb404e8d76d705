#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob);
/// Owned by the blob.
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef source);

} // extern "C"
