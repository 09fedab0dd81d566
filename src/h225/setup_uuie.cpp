#include "h225/addresses_decode.h"
#include "h225/circuits_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/endpoint_type_decode.h"
#include "h225/fast_start.h"
#include "h225/generic_data_decode.h"
#include "h225/h235_tokens_decode.h"
#include "h225/identifiers_decode.h"
#include "h225/protocol_version.h"
#include "h225/services_decode.h"
#include "h225/setup_uuie_decode.h"

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
  m.isExtended = PerReadBit(r);
  m.hasH245Address = PerReadBit(r);
  m.hasSourceAddress = PerReadBit(r);
  m.hasDestinationAddress = PerReadBit(r);
  m.hasDestCallSignalAddress = PerReadBit(r);
  m.hasDestExtraCallInfo = PerReadBit(r);
  m.hasDestExtraCRV = PerReadBit(r);
  m.hasCallServices = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (m.hasSourceAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.sourceAddressCount, Slot<AliasAddress>(&m.sourceAddress), DecodeAliasAddress));
  KELVRA_TRY(DecodeEndpointType(m.sourceInfo, r));
  if (m.hasDestinationAddress)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.destinationAddressCount, Slot<AliasAddress>(&m.destinationAddress), DecodeAliasAddress));
  if (m.hasDestCallSignalAddress) KELVRA_TRY(DecodeTransportAddress(m.destCallSignalAddress, r));
  if (m.hasDestExtraCallInfo)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.destExtraCallInfoCount, Slot<AliasAddress>(&m.destExtraCallInfo), DecodeAliasAddress));
  if (m.hasDestExtraCRV)
    KELVRA_TRY(DecodeSequenceOf(r, &m.destExtraCRVCount, Slot<uint16_t>(&m.destExtraCRV),
                                [](uint16_t& value, PerReader& reader) -> Status {
                                  value = PerReadNumber<uint16_t>(reader, 0, 65535);
                                  return kDecoded;
                                }));
  m.activeMC = PerReadBit(r);
  PerReadFixedOctets(m.conferenceID, r, 16);
  KELVRA_TRY(DecodeNullChoice(m.conferenceGoal, r));
  if (m.hasCallServices) KELVRA_TRY(DecodeQseriesOptions(m.callServices, r));
  KELVRA_TRY(DecodeCallType(m.callType, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasSourceCallSignalAddress = PerReadAdditionBit(r, additions, 0);
  m.hasRemoteExtensionAddress = PerReadAdditionBit(r, additions, 1);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 2);
  m.hasH245SecurityCapability = PerReadAdditionBit(r, additions, 3);
  m.hasTokens = PerReadAdditionBit(r, additions, 4);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 5);
  m.hasFastStart = PerReadAdditionBit(r, additions, 6);
  m.hasMediaWaitForConnect = PerReadAdditionBit(r, additions, 7);
  m.hasCanOverlapSend = PerReadAdditionBit(r, additions, 8);
  m.hasEndpointIdentifier = PerReadAdditionBit(r, additions, 9);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 10);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 11);
  m.hasConnectionParameters = PerReadAdditionBit(r, additions, 12);
  m.hasLanguage = PerReadAdditionBit(r, additions, 13);
  m.hasPresentationIndicator = PerReadAdditionBit(r, additions, 14);
  m.hasScreeningIndicator = PerReadAdditionBit(r, additions, 15);
  m.hasServiceControl = PerReadAdditionBit(r, additions, 16);
  m.hasSymmetricOperationRequired = PerReadAdditionBit(r, additions, 17);
  m.hasCapacity = PerReadAdditionBit(r, additions, 18);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions, 19);
  m.hasDesiredProtocols = PerReadAdditionBit(r, additions, 20);
  m.hasNeededFeatures = PerReadAdditionBit(r, additions, 21);
  m.hasDesiredFeatures = PerReadAdditionBit(r, additions, 22);
  m.hasSupportedFeatures = PerReadAdditionBit(r, additions, 23);
  m.hasParallelH245Control = PerReadAdditionBit(r, additions, 24);
  m.hasAdditionalSourceAddresses = PerReadAdditionBit(r, additions, 25);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 26);
  if (m.hasSourceCallSignalAddress)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeTransportAddress(m.sourceCallSignalAddress, r); }));
  if (m.hasRemoteExtensionAddress)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeAliasAddress(m.remoteExtensionAddress, r); }));
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasH245SecurityCapability)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.h245SecurityCapabilityCount, Slot<H245Security>(&m.h245SecurityCapability),
                              DecodeH245Security);
    }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasMediaWaitForConnect) m.mediaWaitForConnect = PerReadOpenBoolean(r);
  if (m.hasCanOverlapSend) m.canOverlapSend = PerReadOpenBoolean(r);
  if (m.hasEndpointIdentifier) {
    KELVRA_TRY(InOpenType(r, [&] {
      PerReadCharacters16(m.endpointIdentifier, r, PerReadNumber<uint32_t>(r, 1, 128));
      return kDecoded;
    }));
  }
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasConnectionParameters)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeConnectionParameters(m.connectionParameters, r); }));
  if (m.hasLanguage)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.languageCount, Slot<OctetStringValue>(&m.language),
                              [](OctetStringValue& value, PerReader& reader) -> Status {
                                PerReadSizedOctets(value, reader, 32, 1);
                                return kDecoded;
                              });
    }));
  if (m.hasPresentationIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodePresentationIndicator(m.presentationIndicator, r); }));
  if (m.hasScreeningIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeScreeningIndicator(m.screeningIndicator, r); }));
  if (m.hasServiceControl)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.serviceControlCount, Slot<ServiceControlSession>(&m.serviceControl),
                              DecodeServiceControlSession);
    }));
  if (m.hasSymmetricOperationRequired) PerSkipOpenTypes(r, 1);
  if (m.hasCapacity) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallCapacity(m.capacity, r); }));
  if (m.hasCircuitInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeCircuitInfo(m.circuitInfo, r); }));
  if (m.hasDesiredProtocols)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.desiredProtocolsCount, Slot<SupportedProtocols>(&m.desiredProtocols),
                              DecodeSupportedProtocols);
    }));
  if (m.hasNeededFeatures)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.neededFeaturesCount, Slot<GenericData>(&m.neededFeatures), DecodeGenericData);
    }));
  if (m.hasDesiredFeatures)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.desiredFeaturesCount, Slot<GenericData>(&m.desiredFeatures), DecodeGenericData);
    }));
  if (m.hasSupportedFeatures)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.supportedFeaturesCount, Slot<GenericData>(&m.supportedFeatures), DecodeGenericData);
    }));
  if (m.hasParallelH245Control)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.parallelH245ControlCount, Slot<OctetStringValue>(&m.parallelH245Control),
                              DecodeOctetString);
    }));
  if (m.hasAdditionalSourceAddresses)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.additionalSourceAddressesCount,
                              Slot<ExtendedAliasAddress>(&m.additionalSourceAddresses), DecodeExtendedAliasAddress);
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

}  // namespace kelvra::h225
