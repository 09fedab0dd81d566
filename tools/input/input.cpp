#include "input/input.h"

#include <algorithm>
#include <array>

#include "text/hex.h"

namespace {

constexpr size_t kDetectionOctets = 4096;
constexpr size_t kLongestLine = 1 << 20;
constexpr size_t kLongestRaw = 1 << 20;

// As they stand in the file: pcap with microseconds and nanoseconds in either order, and pcapng's
// section header block, which reads the same in both.
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

// Text that is mostly hexadecimal: the rest are mistakes, of which the reader can name the line. Comments may hold
// any octets.
bool IsHexLines(std::span<const uint8_t> start) {
  bool comment = false;
  size_t fitting = 0;
  size_t others = 0;
  for (const uint8_t octet : start) {
    const char character = static_cast<char>(octet);
    if (character == '\n') {
      comment = false;
    } else if (character == '#') {
      comment = true;
    } else if (!comment && IsHexText(character)) {
      ++fitting;
    } else if (!comment) {
      if (octet < ' ' || octet > '~') return false;
      ++others;
    }
  }
  return others == 0 || others < fitting;
}

}  // namespace

InputKind DetectInput(ByteSource& source) {
  const auto start = source.Peek(kDetectionOctets);
  if (start.empty()) throw InputError(source.Name() + ": the input is empty");
  if (IsCapture(start)) return InputKind::kCapture;
  return IsHexLines(start) ? InputKind::kHex : InputKind::kRaw;
}

void ReadHexLines(ByteSource& source, Family family, MessageSink& sink) {
  std::string line;
  for (uint64_t number = 1; source.ReadLine(line, kLongestLine); ++number) {
    Message message{family, {}, std::nullopt};
    try {
      message.octets = FromHex(std::string_view(line).substr(0, line.find('#')));
    } catch (const std::invalid_argument& error) {
      throw InputError(source.Name() + ": line " + std::to_string(number) + ": " + error.what());
    }
    if (!message.octets.empty()) sink.OnMessage(message);
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
