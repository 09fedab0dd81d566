#include "h225/addresses_decode.h"
#include "h225/answer_uuie_decode.h"
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

namespace kelvra::h225 {

Status DecodeCallProceedingUUIE(CallProceedingUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasH245Address = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasH245SecurityMode = PerReadAdditionBit(r, additions, 1);
  m.hasTokens = PerReadAdditionBit(r, additions, 2);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 3);
  m.hasFastStart = PerReadAdditionBit(r, additions, 4);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 5);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 6);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 7);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 8);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 9);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasH245SecurityMode) KELVRA_TRY(InOpenType(r, [&] { return DecodeH245Security(m.h245SecurityMode, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeProgressUUIE(ProgressUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasH245Address = PerReadBit(r);
  m.hasH245SecurityMode = PerReadBit(r);
  m.hasTokens = PerReadBit(r);
  m.hasCryptoTokens = PerReadBit(r);
  m.hasFastStart = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  KELVRA_TRY(DecodeCallIdentifier(m.callIdentifier, r));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeH245Security(m.h245SecurityMode, r));
  if (m.hasTokens)
    KELVRA_TRY(DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken));
  if (m.hasCryptoTokens)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeFastStart(r, &m.fastStartCount, &m.fastStart));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 0);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 1);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 2);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 3);
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeAlertingUUIE(AlertingUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasH245Address = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasH245SecurityMode = PerReadAdditionBit(r, additions, 1);
  m.hasTokens = PerReadAdditionBit(r, additions, 2);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 3);
  m.hasFastStart = PerReadAdditionBit(r, additions, 4);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 5);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 6);
  m.hasAlertingAddress = PerReadAdditionBit(r, additions, 7);
  m.hasPresentationIndicator = PerReadAdditionBit(r, additions, 8);
  m.hasScreeningIndicator = PerReadAdditionBit(r, additions, 9);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 10);
  m.hasServiceControl = PerReadAdditionBit(r, additions, 11);
  m.hasCapacity = PerReadAdditionBit(r, additions, 12);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 13);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 14);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasH245SecurityMode) KELVRA_TRY(InOpenType(r, [&] { return DecodeH245Security(m.h245SecurityMode, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasAlertingAddress)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.alertingAddressCount, Slot<AliasAddress>(&m.alertingAddress), DecodeAliasAddress);
    }));
  if (m.hasPresentationIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodePresentationIndicator(m.presentationIndicator, r); }));
  if (m.hasScreeningIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeScreeningIndicator(m.screeningIndicator, r); }));
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  if (m.hasServiceControl)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.serviceControlCount, Slot<ServiceControlSession>(&m.serviceControl),
                              DecodeServiceControlSession);
    }));
  if (m.hasCapacity) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallCapacity(m.capacity, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeConnectUUIE(ConnectUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasH245Address = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  PerReadFixedOctets(m.conferenceID, r, 16);
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasH245SecurityMode = PerReadAdditionBit(r, additions, 1);
  m.hasTokens = PerReadAdditionBit(r, additions, 2);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 3);
  m.hasFastStart = PerReadAdditionBit(r, additions, 4);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 5);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 6);
  m.hasLanguage = PerReadAdditionBit(r, additions, 7);
  m.hasConnectedAddress = PerReadAdditionBit(r, additions, 8);
  m.hasPresentationIndicator = PerReadAdditionBit(r, additions, 9);
  m.hasScreeningIndicator = PerReadAdditionBit(r, additions, 10);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 11);
  m.hasServiceControl = PerReadAdditionBit(r, additions, 12);
  m.hasCapacity = PerReadAdditionBit(r, additions, 13);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 14);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 15);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasH245SecurityMode) KELVRA_TRY(InOpenType(r, [&] { return DecodeH245Security(m.h245SecurityMode, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  // Gated by the bit of multipleCalls, not by its own: where the two differ, this addition and those
  // behind it are read from the open type of a neighbour.
  if (m.hasMultipleCalls) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasLanguage)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.languageCount, Slot<OctetStringValue>(&m.language),
                              [](OctetStringValue& value, PerReader& reader) -> Status {
                                PerReadSizedOctets(value, reader, 32, 1);
                                return kDecoded;
                              });
    }));
  if (m.hasConnectedAddress)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.connectedAddressCount, Slot<AliasAddress>(&m.connectedAddress), DecodeAliasAddress);
    }));
  if (m.hasPresentationIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodePresentationIndicator(m.presentationIndicator, r); }));
  if (m.hasScreeningIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeScreeningIndicator(m.screeningIndicator, r); }));
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  if (m.hasServiceControl)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.serviceControlCount, Slot<ServiceControlSession>(&m.serviceControl),
                              DecodeServiceControlSession);
    }));
  if (m.hasCapacity) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallCapacity(m.capacity, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

}  // namespace kelvra::h225
