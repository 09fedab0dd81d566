#include "h225/call/release_complete_uuie_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/common/usage_decode.h"
#include "h225/ras/disengage_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

// The extension bit is kept before the entry test: input that ends with it counts as exhausted.
template <class Names>
Status DecodeReason(NullChoice<Names>& m, PerReader& r) {
  m.isExtension = PerReadBit(r);
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoiceIndex(m, r, Names::kRoots);
  return DecodeNull(m, r, index);
}

}  // namespace

Status DecodeDisengageReason(DisengageReason& m, PerReader& r) { return DecodeReason(m, r); }

Status DecodeDisengageRejectReason(DisengageRejectReason& m, PerReader& r) { return DecodeReason(m, r); }

Status DecodeDisengageRequest(DisengageRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  m.callReferenceValue = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_TRY(DecodeDisengageReason(m.disengageReason, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 13);
  m.hasCallIdentifier = known.Next();
  m.hasGatekeeperIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasAnsweredCall = known.Next();
  m.hasCallLinkage = known.Next();
  m.hasCapacity = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasUsageInformation = known.Next();
  m.hasTerminationCause = known.Next();
  m.hasServiceControl = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeOpen(m.gatekeeperIdentifier, r, DecodeIdentifierString));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasAnsweredCall) m.answeredCall = PerReadOpenBoolean(r);
  if (m.hasCallLinkage) KELVRA_TRY(DecodeOpen(m.callLinkage, r, DecodeCallLinkage));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasUsageInformation) KELVRA_TRY(DecodeOpen(m.usageInformation, r, DecodeRasUsageInformation));
  if (m.hasTerminationCause) KELVRA_TRY(DecodeOpen(m.terminationCause, r, DecodeCallTerminationCause));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeDisengageConfirm(DisengageConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 7);
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasCapacity = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasUsageInformation = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasUsageInformation) KELVRA_TRY(DecodeOpen(m.usageInformation, r, DecodeRasUsageInformation));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeDisengageReject(DisengageReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeDisengageRejectReason(m.rejectReason, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 5);
  m.hasAltGKInfo = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeOpen(m.altGKInfo, r, DecodeAltGKInfo));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
