#include "h225/common/circuits_decode.h"
#include "h225/common/generic_data_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

void DecodeWhen(CapacityReportingSpecification::When& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasCallStart = flags.Next();
  m.hasCallEnd = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

Status DecodeCicInfo(CicInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cic), r, PerReadSizedOctetsElement<2, 4>));
  PerReadSizedOctets(m.pointCode, r, 2, 5);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeGroupID(GroupID& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasMember = flags.Next();
  if (m.hasMember) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.member), r, PerReadElement<uint16_t, 0, 65535>));
  PerReadSizedOctets(m.group, r, 1, 128);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCircuitIdentifier(CircuitIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasCic = flags.Next();
  m.hasGroup = flags.Next();
  if (m.hasCic) KELVRA_TRY(DecodeCicInfo(m.cic, r));
  if (m.hasGroup) KELVRA_TRY(DecodeGroupID(m.group, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallsAvailable(CallsAvailable& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasGroup = flags.Next();
  m.calls = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasGroup) PerReadSizedOctets(m.group, r, 1, 128);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCapacityInfo(CallCapacityInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 12);
  m.isExtended = flags.Next();
  m.hasVoiceGwCallsAvailable = flags.Next();
  m.hasH310GwCallsAvailable = flags.Next();
  m.hasH320GwCallsAvailable = flags.Next();
  m.hasH321GwCallsAvailable = flags.Next();
  m.hasH322GwCallsAvailable = flags.Next();
  m.hasH323GwCallsAvailable = flags.Next();
  m.hasH324GwCallsAvailable = flags.Next();
  m.hasT120OnlyGwCallsAvailable = flags.Next();
  m.hasT38FaxAnnexbOnlyGwCallsAvailable = flags.Next();
  m.hasTerminalCallsAvailable = flags.Next();
  m.hasMcuCallsAvailable = flags.Next();
  if (m.hasVoiceGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.voiceGwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH310GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h310GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH320GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h320GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH321GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h321GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH322GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h322GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH323GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h323GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasH324GwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.h324GwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasT120OnlyGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.t120OnlyGwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasT38FaxAnnexbOnlyGwCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.t38FaxAnnexbOnlyGwCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasTerminalCallsAvailable)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.terminalCallsAvailable), r, DecodeCallsAvailable));
  if (m.hasMcuCallsAvailable) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.mcuCallsAvailable), r, DecodeCallsAvailable));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeCircuitInfo(CircuitInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasSourceCircuitID = flags.Next();
  m.hasDestinationCircuitID = flags.Next();
  m.hasGenericData = flags.Next();
  if (m.hasSourceCircuitID) KELVRA_TRY(DecodeCircuitIdentifier(m.sourceCircuitID, r));
  if (m.hasDestinationCircuitID) KELVRA_TRY(DecodeCircuitIdentifier(m.destinationCircuitID, r));
  if (m.hasGenericData) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallCapacity(CallCapacity& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasMaximumCallCapacity = flags.Next();
  m.hasCurrentCallCapacity = flags.Next();
  if (m.hasMaximumCallCapacity) KELVRA_TRY(DecodeCallCapacityInfo(m.maximumCallCapacity, r));
  if (m.hasCurrentCallCapacity) KELVRA_TRY(DecodeCallCapacityInfo(m.currentCallCapacity, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCapacityReportingCapability(CapacityReportingCapability& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.canReportCallCapacity = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCapacityReportingSpecification(CapacityReportingSpecification& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  DecodeWhen(m.when, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
