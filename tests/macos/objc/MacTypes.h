#pragma once

typedef unsigned int UInt32;
