// Times of a capture as text, in UTC.
#pragma once

#include <cstdint>
#include <string>

// "2024-01-31T23:59:59.000001Z"
std::string IsoTime(int64_t microseconds);
// "23:59:59.000001"
std::string ClockTime(int64_t microseconds);
