// Stands in for the C library's <string.h> where Clang compiles the public headers for Windows, whose C library is not
// on this machine. It declares what those headers use, and nothing else, so that more does not slip in.
#pragma once

#include <stddef.h>

extern "C" void* memcpy(void* to, const void* from, size_t octets);
