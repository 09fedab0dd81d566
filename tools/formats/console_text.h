// Shared by the text formats: times in the chosen style, and colours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/formats.h"
#include "text/time_text.h"

// For dates and clock times; relative times have none.
TimeZone ZoneOf(TimeStyle style);

// Times in one style; relative times start at the first one shown.
class TimeColumn {
 public:
  explicit TimeColumn(TimeStyle style) : style_(style) {}

  // "23:59:59.000001" or "+12.000001"
  std::string Clock(int64_t microseconds);
  // With the date and the offset from UTC: "2024-01-31T23:59:59.000001Z".
  std::string Full(int64_t microseconds);
  // The date if it differs from the previous one; otherwise empty.
  std::string NewDate(int64_t microseconds);

 private:
  TimeStyle style_;
  std::optional<int64_t> first_;
  std::optional<int64_t> day_;
};

enum class Color : uint8_t { kTitle, kFault, kRemark, kDate };

void AppendColored(std::string& text, Color color, std::string_view colored, bool isColored);
