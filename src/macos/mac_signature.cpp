#include "macos/mac_signature.h"

#include <Security/SecCode.h>

#include "macos/kernel/cf_values.h"

namespace vantrix {

bool isSignedByIdentity() {
    CFRef<SecCodeRef> self;
    if (SecCodeCopySelf(kSecCSDefaultFlags, self.out()) != errSecSuccess || !self)
        return false;
    CFRef<CFDictionaryRef> facts;
    if (SecCodeCopySigningInformation(self.get(), kSecCSSigningInformation, facts.out()) != errSecSuccess || !facts)
        return false;
    const auto certificates = valueAt<CFArrayRef>(facts.get(), kSecCodeInfoCertificates);
    return certificates && CFArrayGetCount(certificates) > 0;
}

} // namespace vantrix
