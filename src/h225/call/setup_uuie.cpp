#include "h225/call/fast_start.h"
#include "h225/call/setup_uuie_decode.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/protocol_version.h"
#include "h225/common/services_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeConnectionParameters(SetupUUIE::ConnectionParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeNullChoice(m.connectionType, r));
  m.numberOfScnConnections = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_TRY(DecodeNullChoice(m.connectionAggregation, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeSetupUUIE(SetupUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasH245Address = flags.Next();
  m.hasSourceAddress = flags.Next();
  m.hasDestinationAddress = flags.Next();
  m.hasDestCallSignalAddress = flags.Next();
  m.hasDestExtraCallInfo = flags.Next();
  m.hasDestExtraCRV = flags.Next();
  m.hasCallServices = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (m.hasSourceAddress) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.sourceAddress), r, DecodeAliasAddress));
  KELVRA_TRY(DecodeEndpointType(m.sourceInfo, r));
  if (m.hasDestinationAddress) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destinationAddress), r, DecodeAliasAddress));
  if (m.hasDestCallSignalAddress) KELVRA_TRY(DecodeTransportAddress(m.destCallSignalAddress, r));
  if (m.hasDestExtraCallInfo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destExtraCallInfo), r, DecodeAliasAddress));
  if (m.hasDestExtraCRV)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destExtraCRV), r, PerReadElement<uint16_t, 0, 65535>));
  m.activeMC = PerReadBit(r);
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  KELVRA_TRY(DecodeNullChoice(m.conferenceGoal, r));
  if (m.hasCallServices) KELVRA_TRY(DecodeQseriesOptions(m.callServices, r));
  KELVRA_TRY(DecodeCallType(m.callType, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 26);
  m.hasSourceCallSignalAddress = known.Next();
  m.hasRemoteExtensionAddress = known.Next();
  m.hasCallIdentifier = known.Next();
  m.hasH245SecurityCapability = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasFastStart = known.Next();
  m.hasMediaWaitForConnect = known.Next();
  m.hasCanOverlapSend = known.Next();
  m.hasEndpointIdentifier = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasConnectionParameters = known.Next();
  m.hasLanguage = known.Next();
  m.hasPresentationIndicator = known.Next();
  m.hasScreeningIndicator = known.Next();
  m.hasServiceControl = known.Next();
  m.hasSymmetricOperationRequired = known.Next();
  m.hasCapacity = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasDesiredProtocols = known.Next();
  m.hasNeededFeatures = known.Next();
  m.hasDesiredFeatures = known.Next();
  m.hasSupportedFeatures = known.Next();
  m.hasParallelH245Control = known.Next();
  m.hasAdditionalSourceAddresses = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasSourceCallSignalAddress) KELVRA_TRY(DecodeOpen(m.sourceCallSignalAddress, r, DecodeTransportAddress));
  if (m.hasRemoteExtensionAddress) KELVRA_TRY(DecodeOpen(m.remoteExtensionAddress, r, DecodeAliasAddress));
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasH245SecurityCapability)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.h245SecurityCapability), r, DecodeH245Security));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasMediaWaitForConnect) m.mediaWaitForConnect = PerReadOpenBoolean(r);
  if (m.hasCanOverlapSend) m.canOverlapSend = PerReadOpenBoolean(r);
  if (m.hasEndpointIdentifier) KELVRA_TRY(DecodeOpen(m.endpointIdentifier, r, DecodeIdentifierString));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasConnectionParameters) KELVRA_TRY(DecodeOpen(m.connectionParameters, r, DecodeConnectionParameters));
  if (m.hasLanguage) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.language), r, PerReadSizedOctetsElement<1, 32>));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodeOpen(m.presentationIndicator, r, DecodePresentationIndicator));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeOpen(m.screeningIndicator, r, DecodeScreeningIndicator));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasSymmetricOperationRequired) PerPassOverOpenType(r);
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasDesiredProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.desiredProtocols), r, DecodeSupportedProtocols));
  if (m.hasNeededFeatures) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.neededFeatures), r, DecodeGenericData));
  if (m.hasDesiredFeatures) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.desiredFeatures), r, DecodeGenericData));
  if (m.hasSupportedFeatures) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedFeatures), r, DecodeGenericData));
  if (m.hasParallelH245Control)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.parallelH245Control), r, PerReadOctetStringRecord));
  if (m.hasAdditionalSourceAddresses)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.additionalSourceAddresses), r, DecodeExtendedAliasAddress));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
