// Aligned columns of text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// Widens to the longest text so far, so that long addresses shift few lines.
class Column {
 public:
  explicit Column(size_t width) : width_(width) {}

  // Returns the number of blanks that pad a text of this length to the column.
  size_t Blanks(size_t characters) {
    width_ = std::max(width_, characters);
    return width_ - characters;
  }
  void AppendLeft(std::string& line, std::string_view text) {
    line += text;
    line.append(Blanks(text.size()), ' ');
  }
  void AppendRight(std::string& line, std::string_view text) {
    line.append(Blanks(text.size()), ' ');
    line += text;
  }

 private:
  size_t width_;
};
