#pragma once

#include <functional>

#include "macos/kernel/cf_ref.h"
#include "macos/kernel/io_object.h"

namespace vantrix {

/// Calls `visit` for every service of a class, in the registry's order. False when they cannot be listed.
bool forEachService(const char* className, const std::function<void(const IOObject&)>& visit);

/// The first service of a class; empty when there is none.
IOObject firstService(const char* className);

/// One property of a service; null when it is missing.
CFRef<CFTypeRef> propertyOf(const IOObject& service, CFStringRef key);

/// All properties of a service; null when they cannot be read.
CFRef<CFMutableDictionaryRef> propertiesOf(const IOObject& service);

} // namespace vantrix
