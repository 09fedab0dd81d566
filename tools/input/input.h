// Inputs other than captures.
#pragma once

#include <cstdint>

#include "input/byte_source.h"
#include "message.h"

enum class InputKind : uint8_t { kAuto, kCapture, kHex, kRaw };

// Detects the kind of input from its first octets. Throws InputError if there are none.
InputKind DetectInput(ByteSource& source);

// One message per line, dumps with offsets, or C arrays; see HexText.
void ReadHexText(ByteSource& source, Family family, MessageSink& sink);

// The whole input is one message.
void ReadRaw(ByteSource& source, Family family, MessageSink& sink);
