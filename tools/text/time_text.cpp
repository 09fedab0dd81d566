#include "text/time_text.h"

#include <algorithm>
#include <chrono>

namespace {

std::string Padded(int64_t number, size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

}  // namespace

std::string ClockTime(int64_t microseconds) {
  using std::chrono::days;
  const std::chrono::microseconds time(microseconds);
  const std::chrono::hh_mm_ss clock(time - std::chrono::floor<days>(time));
  return Padded(clock.hours().count(), 2) + ":" + Padded(clock.minutes().count(), 2) + ":" +
         Padded(clock.seconds().count(), 2) + "." + Padded(clock.subseconds().count(), 6);
}

std::string IsoTime(int64_t microseconds) {
  using std::chrono::days;
  const auto day = std::chrono::floor<days>(std::chrono::microseconds(microseconds));
  const std::chrono::year_month_day date{std::chrono::sys_days(day)};
  return Padded(int{date.year()}, 4) + "-" + Padded(unsigned{date.month()}, 2) + "-" + Padded(unsigned{date.day()}, 2) +
         "T" + ClockTime(microseconds) + "Z";
}
