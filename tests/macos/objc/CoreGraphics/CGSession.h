#pragma once

#include <CoreFoundation/CoreFoundation.h>

/// Null without a window server session, as over a remote shell. The caller releases it.
extern "C" CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);
