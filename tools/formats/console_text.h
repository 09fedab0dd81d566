// What the formats for a person share: times in the style that was asked for, and colours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/formats.h"

// Times in one style; those that are relative start at the first that is shown.
class TimeColumn {
 public:
  explicit TimeColumn(TimeStyle style) : style_(style) {}

  // "23:59:59.000001" or "+12.000001"
  std::string Clock(int64_t microseconds);
  // With the date: "2024-01-31T23:59:59.000001Z" in UTC.
  std::string Full(int64_t microseconds);
  // The date, where it is another than that of the time before; empty otherwise.
  std::string NewDate(int64_t microseconds);

 private:
  TimeStyle style_;
  std::optional<int64_t> first_;
  std::optional<int64_t> day_;
};

enum class Color : uint8_t { kTitle, kFault, kRemark, kDate };

void AppendColored(std::string& text, Color color, std::string_view colored, bool isColored);
