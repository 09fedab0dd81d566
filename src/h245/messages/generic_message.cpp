#include "h245/common/generic_capability_decode.h"
#include "h245/decode.h"
#include "h245/messages/generic_message_decode.h"

namespace kelvra::h245 {

void DecodeGenericMessage(GenericMessage& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasSubMessageIdentifier = flags.Next();
  m.hasMessageContent = flags.Next();
  DecodeCapabilityIdentifier(m.messageIdentifier, r);
  if (m.hasSubMessageIdentifier) m.subMessageIdentifier = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.hasMessageContent) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.messageContent), r, DecodeGenericParameter));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
