// Messages as hexadecimal text: one per line, dumps with offsets, or C arrays.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// True if the line starts the output of another program: a dump with an offset on each line, as from hexdump -C, od -A
// x -t x1, xxd and packet tools, or C source. Plain hexadecimal text is neither.
bool StartsDump(std::string_view line);
bool StartsArray(std::string_view line);

// A plain line is one message. A dump ends at an empty line, at a line with only its offset, or at the start of another
// dump; an array ends at its closing brace, a semicolon or an empty line.
class HexText {
 public:
  using Handler = std::function<void(std::vector<uint8_t>&&)>;
  explicit HexText(Handler handler) : handler_(std::move(handler)) {}

  // Each of these throws std::invalid_argument, which names the fault in the line.
  void OnLine(std::string_view line);
  void OnEnd();

 private:
  enum class Form : uint8_t { kPlain, kDump, kArray };

  void OnDumpLine(std::string_view line);
  void OnArrayLine(std::string_view line);
  // Removes a part from the start of the line.
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
