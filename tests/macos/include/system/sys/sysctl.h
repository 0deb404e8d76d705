#pragma once

#include <cstddef>
#include <cstdint>

extern "C" {

struct xsw_usage {
    std::uint64_t xsu_total;
    std::uint64_t xsu_avail;
    std::uint64_t xsu_used;
    std::uint32_t xsu_pagesize;
    int xsu_encrypted;
};

int sysctlbyname(const char* name, void* old, std::size_t* oldSize, void* replacement, std::size_t replacementSize);

} // extern "C"
