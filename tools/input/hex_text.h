// Messages as hexadecimal text: a line for each, dumps with offsets, or arrays of C.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Whether a line starts what other programs write, unlike plain hexadecimal text: a dump, of which each line has its
// offset, as hexdump -C, od -A x -t x1, xxd and packet tools write them; or octets in the way of C.
bool StartsDump(std::string_view line);
bool StartsArray(std::string_view line);

// A plain line is a message. A dump ends at an empty line, at a line with its offset alone, or where another starts; an
// array at its closing brace, a semicolon or an empty line.
class HexText {
 public:
  using Handler = std::function<void(std::vector<uint8_t>&&)>;
  explicit HexText(Handler handler) : handler_(std::move(handler)) {}

  // Each of these throws std::invalid_argument, which says what is wrong with the line.
  void OnLine(std::string_view line);
  void OnEnd();

 private:
  enum class Form : uint8_t { kPlain, kDump, kArray };

  void OnDumpLine(std::string_view line);
  void OnArrayLine(std::string_view line);
  // Takes a part off the line's start.
  void OnArrayPart(std::string_view& line);
  void OnArrayOctet(std::string_view& line);
  void SkipDeclaration(std::string_view& line) const;
  std::string WithoutComments(std::string_view line);
  void Append(const std::vector<uint8_t>& octets);
  void Emit();

  Handler handler_;
  Form form_ = Form::kPlain;
  std::vector<uint8_t> octets_;
  bool in_braces_ = false;
  bool in_comment_ = false;
};
