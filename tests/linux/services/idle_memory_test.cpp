#include <cstdio>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"

namespace vantrix {
namespace {

/// Pages of files that this process holds.
long filePages() {
    long total = 0;
    long resident = 0;
    long shared = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "re");
    EXPECT_EQ(std::fscanf(file, "%ld %ld %ld", &total, &resident, &shared), 3);
    std::fclose(file);
    return shared;
}

TEST(IdleMemory, GivesBackTheCodeOfTheStart) {
    const long before = filePages();
    releaseIdleMemory();
    EXPECT_LT(filePages(), before * 3 / 4);
}

} // namespace
} // namespace vantrix
