#include "h245/decode.h"
#include "h245/messages/master_slave_determination_decode.h"

namespace kelvra::h245 {

void DecodeMasterSlaveDetermination(MasterSlaveDetermination& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.terminalType = PerReadNumber<uint8_t>(r, 0, 255);
  m.statusDeterminationNumber = PerReadNumber<uint32_t>(r, 0, 16777215);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMasterSlaveDeterminationAck(MasterSlaveDeterminationAck& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.decision, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMasterSlaveDeterminationReject(MasterSlaveDeterminationReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
