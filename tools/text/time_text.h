// Capture times as text.
#pragma once

#include <cstdint>
#include <string>

// Times are counted in microseconds.
constexpr int64_t kSecond = 1'000'000;

enum class TimeZone : uint8_t { kUtc, kLocal };

// "2024-01-31T23:59:59.000001Z", or with the offset of the local zone: "2024-02-01T00:59:59.000001+01:00"
std::string IsoTime(int64_t microseconds, TimeZone zone = TimeZone::kUtc);
// "2024-01-31"
std::string DateText(int64_t microseconds, TimeZone zone);
// "23:59:59.000001"
std::string ClockTime(int64_t microseconds, TimeZone zone = TimeZone::kUtc);
// "+12.000001", in seconds
std::string RelativeTime(int64_t microseconds);

// The local time of the zone as if it were UTC.
int64_t InZone(int64_t microseconds, TimeZone zone);
