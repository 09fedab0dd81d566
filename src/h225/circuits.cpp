#include "h225/circuits_decode.h"
#include "h225/decode.h"
#include "h225/generic_data_decode.h"

namespace kelvra::h225 {

Status DecodeCicInfo(CicInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(r, &m.cicCount, Slot<OctetStringValue>(&m.cic),
                              [](OctetStringValue& value, PerReader& reader) -> Status {
                                PerReadSizedOctets(value, reader, 3, 2);
                                return kDecoded;
                              }));
  PerReadSizedOctets(m.pointCode, r, 4, 2);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeGroupID(GroupID& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasMember = PerReadBit(r);
  if (m.hasMember)
    KELVRA_TRY(DecodeSequenceOf(r, &m.memberCount, Slot<uint16_t>(&m.member),
                                [](uint16_t& value, PerReader& reader) -> Status {
                                  value = PerReadNumber<uint16_t>(reader, 0, 65535);
                                  return kDecoded;
                                }));
  PerReadSizedOctets(m.group, r, 128, 1);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCircuitIdentifier(CircuitIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasCic = PerReadBit(r);
  m.hasGroup = PerReadBit(r);
  if (m.hasCic) KELVRA_TRY(DecodeCicInfo(m.cic, r));
  if (m.hasGroup) KELVRA_TRY(DecodeGroupID(m.group, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCircuitInfo(CircuitInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasSourceCircuitID = PerReadBit(r);
  m.hasDestinationCircuitID = PerReadBit(r);
  m.hasGenericData = PerReadBit(r);
  if (m.hasSourceCircuitID) KELVRA_TRY(DecodeCircuitIdentifier(m.sourceCircuitID, r));
  if (m.hasDestinationCircuitID) KELVRA_TRY(DecodeCircuitIdentifier(m.destinationCircuitID, r));
  if (m.hasGenericData)
    KELVRA_TRY(DecodeSequenceOf(r, &m.genericDataCount, Slot<GenericData>(&m.genericData), DecodeGenericData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallsAvailable(CallsAvailable& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasGroup = PerReadBit(r);
  m.calls = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasGroup) PerReadSizedOctets(m.group, r, 128, 1);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCapacityInfo(CallCapacityInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasVoiceGwCallsAvailable = PerReadBit(r);
  m.hasH310GwCallsAvailable = PerReadBit(r);
  m.hasH320GwCallsAvailable = PerReadBit(r);
  m.hasH321GwCallsAvailable = PerReadBit(r);
  m.hasH322GwCallsAvailable = PerReadBit(r);
  m.hasH323GwCallsAvailable = PerReadBit(r);
  m.hasH324GwCallsAvailable = PerReadBit(r);
  m.hasT120OnlyGwCallsAvailable = PerReadBit(r);
  m.hasT38FaxAnnexbOnlyGwCallsAvailable = PerReadBit(r);
  m.hasTerminalCallsAvailable = PerReadBit(r);
  m.hasMcuCallsAvailable = PerReadBit(r);
  if (m.hasVoiceGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.voiceGwCallsAvailableCount, Slot<CallsAvailable>(&m.voiceGwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH310GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h310GwCallsAvailableCount, Slot<CallsAvailable>(&m.h310GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH320GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h320GwCallsAvailableCount, Slot<CallsAvailable>(&m.h320GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH321GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h321GwCallsAvailableCount, Slot<CallsAvailable>(&m.h321GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH322GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h322GwCallsAvailableCount, Slot<CallsAvailable>(&m.h322GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH323GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h323GwCallsAvailableCount, Slot<CallsAvailable>(&m.h323GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasH324GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.h324GwCallsAvailableCount, Slot<CallsAvailable>(&m.h324GwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasT120OnlyGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.t120OnlyGwCallsAvailableCount, Slot<CallsAvailable>(&m.t120OnlyGwCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasT38FaxAnnexbOnlyGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.t38FaxAnnexbOnlyGwCallsAvailableCount,
                                Slot<CallsAvailable>(&m.t38FaxAnnexbOnlyGwCallsAvailable), DecodeCallsAvailable));
  if (m.hasTerminalCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.terminalCallsAvailableCount, Slot<CallsAvailable>(&m.terminalCallsAvailable),
                                DecodeCallsAvailable));
  if (m.hasMcuCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(r, &m.mcuCallsAvailableCount, Slot<CallsAvailable>(&m.mcuCallsAvailable),
                                DecodeCallsAvailable));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCapacity(CallCapacity& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasMaximumCallCapacity = PerReadBit(r);
  m.hasCurrentCallCapacity = PerReadBit(r);
  if (m.hasMaximumCallCapacity) KELVRA_TRY(DecodeCallCapacityInfo(m.maximumCallCapacity, r));
  if (m.hasCurrentCallCapacity) KELVRA_TRY(DecodeCallCapacityInfo(m.currentCallCapacity, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
