// Call-signalling messages in parts, for the tests of their bodies.
#pragma once

#include "h225/decoding.h"

namespace kelvra::test {

// A Setup body up to its extension additions, all optional members absent.
inline BitWriter SetupRoot(bool extended, uint8_t version = 4) {
  BitWriter w;
  w.Bit(extended).Bits(0, 7).OpenType(ProtocolIdentifier(version));
  return EmptyEndpointType(w).Bit(true).Octets(Rising(0x60, 16)).Bits(0, 3).Bits(0, 3);
}

// A Connect body up to its extension additions.
inline BitWriter ConnectRoot(bool extended, uint8_t version = 4) {
  BitWriter w;
  w.Bit(extended).Bit(false).OpenType(ProtocolIdentifier(version));
  return EmptyEndpointType(w).Octets(Rising(0x70, 16));
}

// A smallest H.245 OpenLogicalChannel: nullData and no multiplex parameters.
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

// An H323-UU-PDU whose body is `empty`, up to its own extension additions.
inline BitWriter EmptyBodyPdu(bool extended) {
  return BitWriter().Bit(extended).Bit(false).Bit(true).NormallySmall(1).OpenType(std::vector<uint8_t>());
}

// The same inside an H323-UserInformation: octets for a user-user element.
inline BitWriter EmptyBodyInformation(bool userData = false) {
  return BitWriter().Bit(false).Bit(userData).Bit(false).Bit(false).Bit(true).NormallySmall(1).OpenType(
      std::vector<uint8_t>());
}

}  // namespace kelvra::test
