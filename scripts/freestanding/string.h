// Replaces the C library's <string.h> when Clang compiles the public headers for Windows, whose C library this machine
// lacks. It declares only what those headers use, so that nothing else slips in.
#pragma once

#include <stddef.h>

extern "C" void* memcpy(void* to, const void* from, size_t octets);
