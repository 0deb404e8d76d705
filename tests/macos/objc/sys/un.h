#pragma once

#include <unistd.h>

#include_next <sys/un.h>

#define SOL_LOCAL 0
#define LOCAL_PEERPID 0x002

extern "C" int getpeereid(int socket, uid_t* user, gid_t* group);
