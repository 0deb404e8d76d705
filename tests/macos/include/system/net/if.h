#pragma once

#include <cstdint>

#define IFF_UP 0x1
#define IFF_RUNNING 0x40

/// Counters of a link-level entry.
struct if_data {
    unsigned char ifi_type;
    unsigned char ifi_typelen;
    unsigned char ifi_physical;
    unsigned char ifi_addrlen;
    unsigned char ifi_hdrlen;
    unsigned char ifi_recvquota;
    unsigned char ifi_xmitquota;
    unsigned char ifi_unused1;
    std::uint32_t ifi_mtu;
    std::uint32_t ifi_metric;
    std::uint32_t ifi_baudrate;
    std::uint32_t ifi_ipackets;
    std::uint32_t ifi_ierrors;
    std::uint32_t ifi_opackets;
    std::uint32_t ifi_oerrors;
    std::uint32_t ifi_collisions;
    std::uint32_t ifi_ibytes;
    std::uint32_t ifi_obytes;
};
