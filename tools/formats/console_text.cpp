#include "formats/console_text.h"

namespace {

constexpr int64_t kDay = 24LL * 60 * 60 * 1'000'000;

std::string_view StartOf(Color color) {
  switch (color) {
    case Color::kTitle: return "\x1b[1m";
    case Color::kFault: return "\x1b[31m";
    case Color::kRemark: return "\x1b[33m";
    case Color::kDate: break;
  }
  return "\x1b[36m";
}

}  // namespace

TimeZone ZoneOf(TimeStyle style) { return style == TimeStyle::kLocal ? TimeZone::kLocal : TimeZone::kUtc; }

std::string TimeColumn::Clock(int64_t microseconds) {
  if (style_ != TimeStyle::kRelative) return ClockTime(microseconds, ZoneOf(style_));
  if (!first_) first_ = microseconds;
  return RelativeTime(microseconds - *first_);
}

std::string TimeColumn::Full(int64_t microseconds) {
  return style_ == TimeStyle::kRelative ? Clock(microseconds) : IsoTime(microseconds, ZoneOf(style_));
}

std::string TimeColumn::NewDate(int64_t microseconds) {
  if (style_ == TimeStyle::kRelative) return {};
  const int64_t time = InZone(microseconds, ZoneOf(style_));
  const int64_t day = time / kDay - (time % kDay < 0 ? 1 : 0);
  if (day_ == day) return {};
  day_ = day;
  return DateText(microseconds, ZoneOf(style_));
}

void AppendColored(std::string& text, Color color, std::string_view colored, bool isColored) {
  if (isColored) text += StartOf(color);
  text += colored;
  if (isColored) text += "\x1b[0m";
}
