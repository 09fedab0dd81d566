// H.245 requests composed by hand: an openLogicalChannel with any DataType.
#pragma once

#include <cstdint>
#include <vector>

#include "per/bit_writer.h"

namespace kelvra::test {

inline void WriteNullDataType(BitWriter& writer) { writer.Bits(0b0001, 4); }

// The smallest H.245 OpenLogicalChannel: nullData and no multiplex parameters.
inline BitWriter NullChannel(uint16_t number) {
  return BitWriter()
      .Bits(0, 2)
      .Align()
      .Bits(number - 1U, 16)
      .Bits(0, 2)
      .Bits(1, 4)
      .Bit(true)
      .NormallySmall(1)
      .OpenType(std::vector<uint8_t>());
}

// `writeDataType` takes the message's writer.
template <class Write>
std::vector<uint8_t> OpenLogicalChannelMessage(Write writeDataType) {
  BitWriter message;
  message.Bits(0b000, 3);            // request
  message.Bits(0b00011, 5);          // openLogicalChannel
  message.Bits(0b00, 2);             // neither extended nor with reverse parameters
  message.Align().Bits(0x0063, 16);  // forwardLogicalChannelNumber 100
  message.Bits(0b00, 2);             // forward parameters without portNumber
  writeDataType(message);
  BitWriter parameters;
  parameters.Bits(0, 11).Align().Bits(1, 8);  // h2250LogicalChannelParameters with sessionID 1 alone
  message.Bit(true).NormallySmall(0).OpenType(parameters);
  return message.Done();
}

}  // namespace kelvra::test
