#pragma once

#define __MAC_OS_X_VERSION_MIN_REQUIRED 130000
#define __MAC_OS_X_VERSION_MAX_ALLOWED 140000

#define VANTRIX_AVAILABLE_macos(version) macos, introduced = version
