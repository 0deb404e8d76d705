#pragma once

#include <sys/socket.h>

#define NI_MAXHOST 1025
#define NI_NUMERICHOST 0x2
#define EAI_FAIL 4

extern "C" int getnameinfo(const struct sockaddr* address, socklen_t size, char* host, socklen_t hostSize,
                           char* service, socklen_t serviceSize, int flags) __asm__("simulated_getnameinfo");
