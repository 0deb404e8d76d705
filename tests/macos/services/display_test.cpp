#include <CoreGraphics/CoreGraphics.h>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"

namespace {

int references = 0;
bool hasSession = true;

} // namespace

/// The simulated system's: the one thing of CoreGraphics that is asked here, and what it takes to let go of it.
extern "C" CFDictionaryRef CGSessionCopyCurrentDictionary() {
    references += hasSession ? 1 : 0;
    return hasSession ? reinterpret_cast<CFDictionaryRef>(&references) : nullptr;
}
extern "C" void CFRelease(CFTypeRef) {
    --references;
}

namespace vantrix {
namespace {

TEST(Display, IsTheSystemsOwnWhateverTheUserNamesOrNone) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    char name[] = "vantrix";
    char option[] = "-platform";
    char value[] = "offscreen";
    char* arguments[] = {name, option, value, nullptr};
    hasSession = false;
    EXPECT_EQ(prepareDisplay(3, arguments), nullptr);
    EXPECT_STREQ(arguments[2], "offscreen");
    hasSession = true;
    EXPECT_NE(prepareDisplay(3, arguments), nullptr);
    EXPECT_STREQ(arguments[2], "cocoa");
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "cocoa");
    EXPECT_EQ(references, 0);
}

} // namespace
} // namespace vantrix
