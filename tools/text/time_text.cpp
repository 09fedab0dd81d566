#include "text/time_text.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace {

using std::chrono::days;

void AppendPadded(std::string& text, int64_t number, size_t width) {
  const size_t first = text.size();
  text.append(width, '0');
  for (size_t i = width; i-- > 0 && number > 0; number /= 10) text[first + i] = static_cast<char>('0' + number % 10);
}

// The offset of local time from UTC at that second.
int64_t OffsetAt(int64_t second) {
  const auto time = static_cast<std::time_t>(second);
  std::tm local{};
#if defined(_WIN32)
  if (localtime_s(&local, &time) != 0) return 0;
#else
  if (localtime_r(&time, &local) == nullptr) return 0;
#endif
  const std::chrono::year_month_day date{std::chrono::year(local.tm_year + 1900),
                                         std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                                         std::chrono::day(static_cast<unsigned>(local.tm_mday))};
  const int64_t day = std::chrono::sys_days(date).time_since_epoch().count();
  return ((day * 24 + local.tm_hour) * 60 + local.tm_min) * 60 + local.tm_sec - second;
}

void AppendDate(std::string& text, int64_t microseconds) {
  const auto day = std::chrono::floor<days>(std::chrono::microseconds(microseconds));
  const std::chrono::year_month_day date{std::chrono::sys_days(day)};
  AppendPadded(text, int{date.year()}, 4);
  text += '-';
  AppendPadded(text, unsigned{date.month()}, 2);
  text += '-';
  AppendPadded(text, unsigned{date.day()}, 2);
}

void AppendClock(std::string& text, int64_t microseconds) {
  const std::chrono::microseconds time(microseconds);
  const std::chrono::hh_mm_ss clock(time - std::chrono::floor<days>(time));
  AppendPadded(text, clock.hours().count(), 2);
  text += ':';
  AppendPadded(text, clock.minutes().count(), 2);
  text += ':';
  AppendPadded(text, clock.seconds().count(), 2);
  text += '.';
  AppendPadded(text, clock.subseconds().count(), 6);
}

// "+01:00"
void AppendOffset(std::string& text, int64_t minutes) {
  const int64_t length = minutes < 0 ? -minutes : minutes;
  text += minutes < 0 ? '-' : '+';
  AppendPadded(text, length / 60, 2);
  text += ':';
  AppendPadded(text, length % 60, 2);
}

}  // namespace

int64_t InZone(int64_t microseconds, TimeZone zone) {
  if (zone == TimeZone::kUtc) return microseconds;
  const int64_t second = std::chrono::floor<std::chrono::seconds>(std::chrono::microseconds(microseconds)).count();
  return microseconds + OffsetAt(second) * kSecond;
}

std::string IsoTime(int64_t microseconds, TimeZone zone) {
  const int64_t shown = InZone(microseconds, zone);
  std::string text;
  AppendDate(text, shown);
  text += 'T';
  AppendClock(text, shown);
  if (zone == TimeZone::kUtc) {
    text += 'Z';
  } else {
    AppendOffset(text, (shown - microseconds) / (60 * kSecond));
  }
  return text;
}

std::string DateText(int64_t microseconds, TimeZone zone) {
  std::string text;
  AppendDate(text, InZone(microseconds, zone));
  return text;
}

std::string ClockTime(int64_t microseconds, TimeZone zone) {
  std::string text;
  AppendClock(text, InZone(microseconds, zone));
  return text;
}

std::string RelativeTime(int64_t microseconds) {
  const int64_t length = microseconds < 0 ? -microseconds : microseconds;
  std::string text(microseconds < 0 ? "-" : "+");
  text += std::to_string(length / kSecond);
  text += '.';
  AppendPadded(text, length % kSecond, 6);
  return text;
}
