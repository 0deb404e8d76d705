#pragma once

#include <cstdint>

extern "C" {

constexpr int MNT_NOWAIT = 2;
constexpr std::uint32_t MNT_LOCAL = 0x1000;
constexpr std::uint32_t MNT_DONTBROWSE = 0x100000;

struct statfs { // of its fields, those that are read
    std::uint32_t f_flags;
    char f_mntonname[1024];
    char f_mntfromname[1024];
};

int getfsstat(struct statfs* list, int bytes, int flags) __asm__("simulated_getfsstat");

} // extern "C"
