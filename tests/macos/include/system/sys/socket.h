#pragma once

// The addresses of the simulated system, which carry their length. The functions that this machine has under the same
// name, with other records, are linked under names of the simulation's own.

#include <cstdint>

#define AF_INET 2
#define AF_LINK 18
#define AF_INET6 30

typedef std::uint32_t socklen_t;

struct sockaddr {
    std::uint8_t sa_len;
    std::uint8_t sa_family;
    char sa_data[14];
};
