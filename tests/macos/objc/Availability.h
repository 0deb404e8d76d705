#pragma once

#define __MAC_OS_X_VERSION_MIN_REQUIRED 130000
#define __MAC_OS_X_VERSION_MAX_ALLOWED 140000

// Only the Mac's part of each list matters here; it comes first by convention.
#define VANTRIX_AVAILABLE_macos(version) macos, introduced = version
#define API_AVAILABLE(platform, ...) __attribute__((availability(VANTRIX_AVAILABLE_##platform)))
#define VANTRIX_DEPRECATED_macos(first, last) macos, introduced = first, deprecated = last
#define API_DEPRECATED(text, platform, ...) __attribute__((availability(VANTRIX_DEPRECATED_##platform, message = text)))
#define API_UNAVAILABLE(...)
