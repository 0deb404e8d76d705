#include <CoreGraphics/CoreGraphics.h>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"

namespace {

int references = 0;
bool hasSession = true;

} // namespace

/// The simulated system's: the one thing of CoreGraphics that is asked here, and what it takes to let go of it.
extern "C" CFDictionaryRef CGSessionCopyCurrentDictionary() {
    if (!hasSession)
        return nullptr;
    ++references;
    return reinterpret_cast<CFDictionaryRef>(&references);
}
extern "C" void CFRelease(CFTypeRef) {
    --references;
}

namespace vantrix {
namespace {

/// What the toolkit finds in its options afterwards.
std::string platformOption(const char* option) {
    char name[] = "vantrix";
    std::string flag = option;
    char value[] = "offscreen";
    char* arguments[] = {name, flag.data(), value, nullptr};
    EXPECT_NE(prepareDisplay(3, arguments), nullptr);
    return arguments[2];
}

TEST(Display, IsTheSystemsOwnWhateverTheUserNames) {
    hasSession = true;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_EQ(platformOption("-platform"), "cocoa");
    EXPECT_EQ(platformOption("--platform"), "cocoa");
    EXPECT_EQ(platformOption("--show-settings"), "offscreen");
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "cocoa");
    EXPECT_EQ(references, 0);
}

TEST(Display, ThereIsNoneWithoutASession) {
    hasSession = false;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    char name[] = "vantrix";
    char* arguments[] = {name, nullptr};
    EXPECT_EQ(prepareDisplay(1, arguments), nullptr);
    EXPECT_EQ(references, 0);
}

} // namespace
} // namespace vantrix
