// Columns of text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// Grows with what it has held, so that long addresses disturb few lines.
class Column {
 public:
  explicit Column(size_t width) : width_(width) {}

  // Returns how many blanks fill the column up after a text of so many characters.
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
