#include "input/input.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "input/hex_text.h"
#include "text/hex.h"

namespace {

constexpr size_t kDetectionOctets = 4096;
constexpr size_t kLongestLine = 1 << 20;
constexpr size_t kLongestRaw = 1 << 20;

// As stored in the file: pcap with microseconds or nanoseconds in either byte order, and the section header block of
// pcapng, the same in both.
constexpr std::array<std::array<uint8_t, 4>, 5> kCaptureMagics{{{0xA1, 0xB2, 0xC3, 0xD4},
                                                                {0xD4, 0xC3, 0xB2, 0xA1},
                                                                {0xA1, 0xB2, 0x3C, 0x4D},
                                                                {0x4D, 0x3C, 0xB2, 0xA1},
                                                                {0x0A, 0x0D, 0x0D, 0x0A}}};

bool IsCapture(std::span<const uint8_t> start) {
  return std::any_of(kCaptureMagics.begin(), kCaptureMagics.end(), [start](const auto& magic) {
    return start.size() >= magic.size() && std::equal(magic.begin(), magic.end(), start.begin());
  });
}

// If text is mostly hexadecimal, the rest is a mistake whose line the reader can name. Comments may hold any octets.
bool IsMostlyHex(std::string_view text) {
  size_t fitting = 0;
  size_t others = 0;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    for (const char character : line.substr(0, line.find('#'))) ++(IsHexText(character) ? fitting : others);
    text.remove_prefix(std::min(text.size(), line.size() + 1));
  }
  return others == 0 || others < fitting;
}

bool HasDumpOrArray(std::string_view text) {
  bool has_array = false;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    if (StartsDump(line)) return true;
    has_array = has_array || StartsArray(line);
    text.remove_prefix(std::min(text.size(), line.size() + 1));
  }
  return has_array;
}

bool IsText(std::string_view text) {
  bool comment = false;
  return std::all_of(text.begin(), text.end(), [&comment](char character) {
    comment = character != '\n' && (comment || character == '#');
    return comment || IsHexText(character) || (character >= ' ' && character <= '~');
  });
}

bool IsHexadecimal(std::span<const uint8_t> start) {
  const std::string text(start.begin(), start.end());
  return IsText(text) && (IsMostlyHex(text) || HasDumpOrArray(text));
}

}  // namespace

InputKind DetectInput(ByteSource& source) {
  const auto magic = source.Peek(kCaptureMagics.front().size());
  if (magic.empty()) throw InputError(source.Name() + ": the input is empty");
  if (IsCapture(magic)) return InputKind::kCapture;
  return IsHexadecimal(source.PeekLine(kDetectionOctets)) ? InputKind::kHex : InputKind::kRaw;
}

void ReadHexText(ByteSource& source, Family family, MessageSink& sink) {
  HexText text([family, &sink](std::vector<uint8_t>&& octets) { sink.OnMessage({family, std::move(octets), {}}); });
  uint64_t number = 1;
  try {
    std::string line;
    for (; source.ReadLine(line, kLongestLine); ++number) text.OnLine(line);
    text.OnEnd();
  } catch (const std::invalid_argument& error) {
    throw InputError(source.Name() + ": line " + std::to_string(number) + ": " + error.what());
  }
}

void ReadRaw(ByteSource& source, Family family, MessageSink& sink) {
  Message message{family, std::vector<uint8_t>(kLongestRaw + 1), std::nullopt};
  message.octets.resize(source.Read(message.octets.data(), message.octets.size()));
  if (message.octets.empty()) throw InputError(source.Name() + ": the input is empty");
  if (message.octets.size() > kLongestRaw) {
    throw InputError(source.Name() + ": too long for one message");
  }
  sink.OnMessage(message);
}
