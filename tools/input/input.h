// The inputs without a capture round the messages.
#pragma once

#include <cstdint>

#include "input/byte_source.h"
#include "message.h"

enum class InputKind : uint8_t { kAuto, kCapture, kHex, kRaw };

// What the first octets show the input to be. Throws InputError when there are none.
InputKind DetectInput(ByteSource& source);

// A line for each message, dumps with offsets, or arrays of C; see HexText.
void ReadHexText(ByteSource& source, Family family, MessageSink& sink);

// The whole input is one message.
void ReadRaw(ByteSource& source, Family family, MessageSink& sink);
