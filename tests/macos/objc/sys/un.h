#pragma once

#include_next <sys/un.h>

#define SOL_LOCAL 0
#define LOCAL_PEERPID 0x002
