#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef struct __SecTask* SecTaskRef;

SecTaskRef SecTaskCreateFromSelf(CFAllocatorRef allocator);
CFTypeRef SecTaskCopyValueForEntitlement(SecTaskRef task, CFStringRef entitlement, CFErrorRef* error);

} // extern "C"
