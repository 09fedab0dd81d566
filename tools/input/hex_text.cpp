#include "input/hex_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <stdexcept>

#include "text/concat.h"
#include "text/hex.h"

namespace {

constexpr std::string_view kBlanks = " \t\r\f\v";
constexpr size_t kMostOctets = 1 << 20;  // per message

bool IsBlank(char character) { return kBlanks.find(character) != std::string_view::npos; }
bool IsHexDigit(char character) { return IsHexText(character) && character != ':' && !IsBlank(character); }

size_t BlanksAtStart(std::string_view text) { return std::min(text.find_first_not_of(kBlanks), text.size()); }

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(BlanksAtStart(text));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutHashComment(std::string_view line) { return line.substr(0, line.find('#')); }

// The hexadecimal digits at the start of a text.
std::string_view Digits(std::string_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(), IsHexDigit);
  return text.substr(0, static_cast<size_t>(end - text.begin()));
}

std::string OffsetText(uint64_t offset) {
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), offset, 16).ptr;
  return "0x" + std::string(digits.data(), end);
}

// A line of a dump: "0010  03 00 00 1c  ....".
struct DumpLine {
  uint64_t offset = 0;
  bool colon = false;
  std::vector<uint8_t> octets;
};

// Removes the octets, up to the character column: programs put more than one blank or a bar before it. There may also
// be two blanks after the eighth octet. Without a colon after the offset, octets must be single: a program that groups
// them may also reorder them.
void TakeOctets(std::string_view& text, DumpLine& line) {
  constexpr size_t middle = 8;
  for (bool first = true;; first = false) {
    const size_t blanks = BlanksAtStart(text);
    const std::string_view group = Digits(text.substr(blanks));
    const size_t end = blanks + group.size();
    const bool fits = line.colon ? group.size() > 0 && group.size() % 2 == 0 : group.size() == 2;
    const bool ends_here = end == text.size() || IsBlank(text[end]);
    const bool at_middle = blanks == 2 && line.octets.size() == middle && group.size() == 2;
    if (!fits || !ends_here || (!first && blanks != 1 && !at_middle)) return;
    const auto octets = FromHex(group);
    line.octets.insert(line.octets.end(), octets.begin(), octets.end());
    text.remove_prefix(end);
  }
}

// Empty if the line has no offset.
std::optional<DumpLine> ParseDumpLine(std::string_view text) {
  constexpr size_t fewest = 3;
  constexpr size_t most = 8;
  text = Trimmed(text);
  if (text.starts_with("0x")) text.remove_prefix(2);
  const std::string_view offset = Digits(text);
  if (offset.size() < fewest || offset.size() > most) return std::nullopt;
  DumpLine line;
  std::from_chars(offset.data(), offset.data() + offset.size(), line.offset, 16);
  text.remove_prefix(offset.size());
  line.colon = text.starts_with(':');
  if (line.colon) text.remove_prefix(1);
  if (!text.empty() && !IsBlank(text.front())) return std::nullopt;
  TakeOctets(text, line);
  const bool characters_follow = BlanksAtStart(text) > 1;
  if (!text.empty() && !characters_follow) return std::nullopt;
  return line;
}

}  // namespace

// In plain text, leading zeros come in a group like those that follow.
bool StartsDump(std::string_view line) {
  const auto parsed = ParseDumpLine(WithoutHashComment(line));
  return parsed && parsed->offset == 0 && !parsed->octets.empty();
}

bool StartsArray(std::string_view line) {
  line = Trimmed(WithoutHashComment(line));
  if (line.find("\\x") != std::string_view::npos || line.find('{') != std::string_view::npos) return true;
  return line.ends_with('=') || line.starts_with("0x") || line.starts_with("/*") || line.starts_with("//");
}

void HexText::OnLine(std::string_view line) {
  if (form_ == Form::kPlain && StartsDump(line)) form_ = Form::kDump;
  if (form_ == Form::kPlain && StartsArray(line)) form_ = Form::kArray;
  switch (form_) {
    case Form::kDump: return OnDumpLine(line);
    case Form::kArray: return OnArrayLine(line);
    case Form::kPlain: break;
  }
  octets_ = FromHex(WithoutHashComment(line));
  Emit();
}

void HexText::OnEnd() {
  if (in_braces_ || in_comment_) throw std::invalid_argument("the array does not end");
  Emit();
}

void HexText::Emit() {
  if (!octets_.empty()) handler_(std::exchange(octets_, {}));
}

void HexText::Append(const std::vector<uint8_t>& octets) {
  octets_.insert(octets_.end(), octets.begin(), octets.end());
  if (octets_.size() > kMostOctets) throw std::invalid_argument("too long for any message");
}

void HexText::OnDumpLine(std::string_view line) {
  if (Trimmed(line).empty()) {
    Emit();
    form_ = Form::kPlain;
    return;
  }
  if (Trimmed(line).starts_with('#')) return;
  const auto parsed = ParseDumpLine(line);
  if (!parsed) throw std::invalid_argument("not a line of a dump: an offset and octets");
  if (parsed->offset == 0) Emit();
  if (parsed->offset != octets_.size()) {
    throw std::invalid_argument(
        Concat({"the dump goes on at ", OffsetText(parsed->offset), ", not at ", OffsetText(octets_.size())}));
  }
  Append(parsed->octets);
  if (!parsed->octets.empty()) return;
  Emit();
  form_ = Form::kPlain;
}

// Replaces comments by blanks.
std::string HexText::WithoutComments(std::string_view line) {
  std::string kept;
  while (!line.empty()) {
    if (in_comment_) {
      const size_t end = line.find("*/");
      in_comment_ = end == std::string_view::npos;
      line.remove_prefix(in_comment_ ? line.size() : end + 2);
    } else if (line.starts_with("//") || line.starts_with('#')) {
      break;
    } else if (line.starts_with("/*")) {
      in_comment_ = true;
      kept += ' ';
      line.remove_prefix(2);
    } else {
      kept += line.front();
      line.remove_prefix(1);
    }
  }
  return kept;
}

void HexText::OnArrayLine(std::string_view line) {
  const bool empty = Trimmed(line).empty();
  if (empty && !in_braces_ && !in_comment_) return Emit();
  const std::string kept = WithoutComments(line);
  for (std::string_view rest = kept; !rest.empty();) OnArrayPart(rest);
}

void HexText::OnArrayPart(std::string_view& line) {
  if (line.starts_with("0x") || line.starts_with("0X") || line.starts_with("\\x")) return OnArrayOctet(line);
  const char next = line.front();
  const bool ends = next == '}' || next == ';';
  if (ends) Emit();
  if (next == '{' || next == '}') in_braces_ = next == '{';
  const bool separates = next == '{' || next == '"' || next == ',' || IsBlank(next);
  if (!ends && !separates) return SkipDeclaration(line);
  line.remove_prefix(1);
}

void HexText::OnArrayOctet(std::string_view& line) {
  const std::string_view digits = Digits(line.substr(2));
  if (digits.empty() || digits.size() > 2) throw std::invalid_argument("not an octet of two hexadecimal digits");
  Append(FromHex(digits.size() == 2 ? digits : Concat({"0", digits})));
  line.remove_prefix(2 + digits.size());
}

// Removes what precedes the octets of an array, or gives its size.
void HexText::SkipDeclaration(std::string_view& line) const {
  const size_t size = std::min(line.find_first_of("{\";"), line.size());
  const bool assigns = line.substr(0, size).find_first_of("=[") != std::string_view::npos;
  if (in_braces_ || !octets_.empty() || !assigns) {
    throw std::invalid_argument("not an octet: 0x or \\x and two hexadecimal digits");
  }
  line.remove_prefix(size);
}
