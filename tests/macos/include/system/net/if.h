#pragma once

#include <cstdint>

#define IFF_UP 0x1
#define IFF_RUNNING 0x40

/// Counters of a link-level entry.
struct if_data {
    unsigned char ifi_type, ifi_typelen, ifi_physical, ifi_addrlen, ifi_hdrlen, ifi_recvquota, ifi_xmitquota,
        ifi_unused1;
    std::uint32_t ifi_mtu, ifi_metric, ifi_baudrate, ifi_ipackets, ifi_ierrors, ifi_opackets, ifi_oerrors,
        ifi_collisions, ifi_ibytes, ifi_obytes;
};
