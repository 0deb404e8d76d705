#pragma once

#include <cstdint>

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef std::int32_t OSStatus;
typedef std::uint32_t SecCSFlags;
typedef struct __SecCode* SecCodeRef;
typedef struct __SecCode const* SecStaticCodeRef;

enum : OSStatus { errSecSuccess = 0 };
enum : SecCSFlags { kSecCSDefaultFlags = 0, kSecCSSigningInformation = 1 << 1 };
extern const CFStringRef kSecCodeInfoCertificates;

OSStatus SecCodeCopySelf(SecCSFlags flags, SecCodeRef* self);
OSStatus SecCodeCopySigningInformation(SecStaticCodeRef code, SecCSFlags flags, CFDictionaryRef* information);

} // extern "C"
