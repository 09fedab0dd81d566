#include "h225/common/address_pattern_decode.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/protocol_version.h"
#include "h225/common/services_decode.h"
#include "h225/common/usage_decode.h"
#include "h225/ras/registration_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

// Asks on entry, as no other SEQUENCE written inside another does.
Status DecodePreGrantedARQ(RegistrationConfirm::PreGrantedARQ& m, PerReader& r, int32_t mode) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 5);
  m.isExtended = flags.Next();
  m.makeCall = flags.Next();
  m.useGKCallSignalAddressToMakeCall = flags.Next();
  m.answerCall = flags.Next();
  m.useGKCallSignalAddressToAnswer = flags.Next();
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasIrrFrequencyInCall = known.Next();
  m.hasTotalBandwidthRestriction = known.Next();
  if (mode == kVersion3Mode) m.hasVersionThreeBoolean = PerReadAdditionBit(r, additions);
  if (mode == kVersion4Mode) {
    known = PerReadKnownAdditions(r, additions, 2);
    m.hasAlternateTransportAddresses = known.Next();
    m.hasUseSpecifiedTransport = known.Next();
  }
  PerNoteUnknownAdditions(r, additions);
  if (m.hasIrrFrequencyInCall) m.irrFrequencyInCall = PerReadOpenNumber<uint16_t>(r, 1, 65535);
  if (m.hasTotalBandwidthRestriction)
    m.totalBandwidthRestriction = PerReadOpenNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasVersionThreeBoolean) m.versionThreeBoolean = PerReadOpenBoolean(r);
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(DecodeOpen(m.alternateTransportAddresses, r, DecodeAlternateTransportAddresses));
  if (m.hasUseSpecifiedTransport) KELVRA_TRY(DecodeOpen(m.useSpecifiedTransport, r, DecodeNullChoice));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeInvalidTerminalAliases(RegistrationRejectReason::InvalidTerminalAliases& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasTerminalAlias = flags.Next();
  m.hasTerminalAliasPattern = flags.Next();
  m.hasSupportedPrefixes = flags.Next();
  if (m.hasTerminalAlias) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.terminalAlias), r, DecodeAliasAddress));
  if (m.hasTerminalAliasPattern)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.terminalAliasPattern), r, DecodeAddressPattern));
  if (m.hasSupportedPrefixes) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.supportedPrefixes), r, DecodeSupportedPrefix));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeRegistrationRejectReason(RegistrationRejectReason& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 8);
  if (m.isExtension) {
    if (index == 6) return DecodeOpen(m.invalidTerminalAliases, r, DecodeInvalidTerminalAliases);
    return PassOverAlternative(r, index, 9);
  }
  if (index == 4) return DecodeSequenceOf(ListOf(m.duplicateAlias), r, DecodeAliasAddress);
  return NullAlternative(index, 8);
}

}  // namespace

Status DecodeRegistrationRequest(RegistrationRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasTerminalAlias = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  int32_t mode = 0;
  KELVRA_TRY(ReadRegistrationProtocolIdentifier(m.protocolIdentifier, r, mode));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  m.discoveryComplete = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.callSignalAddress), r, DecodeTransportAddress));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.rasAddress), r, DecodeTransportAddress));
  KELVRA_TRY(DecodeEndpointType(m.terminalType, r));
  if (m.hasTerminalAlias) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.terminalAlias), r, DecodeAliasAddress));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  KELVRA_TRY(DecodeVendorIdentifier(m.endpointVendor, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 8);
  m.hasAlternateEndpoints = known.Next();
  m.hasTimeToLive = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasKeepAlive = known.Next();
  m.hasEndpointIdentifier = known.Next();
  m.hasWillSupplyUUIEs = known.Next();
  if (mode >= kVersion3Mode) m.hasMaintainConnection = PerReadAdditionBit(r, additions);
  if (mode == kVersion3Mode) m.hasVersionThreeBoolean = PerReadAdditionBit(r, additions);
  if (mode == kVersion4Mode) {
    known = PerReadKnownAdditions(r, additions, 12);
    m.hasAlternateTransportAddresses = known.Next();
    m.hasAdditiveRegistration = known.Next();
    m.hasTerminalAliasPattern = known.Next();
    m.hasSupportsAltGK = known.Next();
    m.hasUsageReportingCapability = known.Next();
    m.hasMultipleCalls = known.Next();
    m.hasSupportedH248Packages = known.Next();
    m.hasCallCreditCapability = known.Next();
    m.hasCapacityReportingCapability = known.Next();
    m.hasCapacity = known.Next();
    m.hasFeatureSet = known.Next();
    m.hasGenericData = known.Next();
  }
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAlternateEndpoints) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alternateEndpoints), r, DecodeEndpoint));
  if (m.hasTimeToLive) m.timeToLive = PerReadOpenNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasKeepAlive) m.keepAlive = PerReadOpenBoolean(r);
  if (m.hasEndpointIdentifier) KELVRA_TRY(DecodeOpen(m.endpointIdentifier, r, DecodeIdentifierString));
  if (m.hasWillSupplyUUIEs) m.willSupplyUUIEs = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasVersionThreeBoolean) m.versionThreeBoolean = PerReadOpenBoolean(r);
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(DecodeOpen(m.alternateTransportAddresses, r, DecodeAlternateTransportAddresses));
  if (m.hasAdditiveRegistration) PerPassOverOpenType(r);
  if (m.hasTerminalAliasPattern)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.terminalAliasPattern), r, DecodeAddressPattern));
  if (m.hasSupportsAltGK) PerPassOverOpenType(r);
  if (m.hasUsageReportingCapability) KELVRA_TRY(DecodeOpen(m.usageReportingCapability, r, DecodeRasUsageInfoTypes));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasSupportedH248Packages)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedH248Packages), r, PerReadOctetStringRecord));
  if (m.hasCallCreditCapability) KELVRA_TRY(DecodeOpen(m.callCreditCapability, r, DecodeCallCreditCapability));
  if (m.hasCapacityReportingCapability)
    KELVRA_TRY(DecodeOpen(m.capacityReportingCapability, r, DecodeCapacityReportingCapability));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeRegistrationConfirm(RegistrationConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasTerminalAlias = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  int32_t mode = 0;
  KELVRA_TRY(ReadRegistrationProtocolIdentifier(m.protocolIdentifier, r, mode));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.callSignalAddress), r, DecodeTransportAddress));
  if (m.hasTerminalAlias) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.terminalAlias), r, DecodeAliasAddress));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 17);
  m.hasAlternateGatekeeper = known.Next();
  m.hasTimeToLive = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasWillRespondToIRR = known.Next();
  m.hasPreGrantedARQ = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasServiceControl = known.Next();
  m.hasSupportsAdditiveRegistration = known.Next();
  m.hasTerminalAliasPattern = known.Next();
  m.hasSupportedPrefixes = known.Next();
  m.hasUsageSpec = known.Next();
  m.hasFeatureServerAlias = known.Next();
  m.hasCapacityReportingSpec = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAlternateGatekeeper)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alternateGatekeeper), r, DecodeAlternateGK));
  if (m.hasTimeToLive) m.timeToLive = PerReadOpenNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasWillRespondToIRR) m.willRespondToIRR = PerReadOpenBoolean(r);
  if (m.hasPreGrantedARQ) {
    OpenTypeBegin(r);
    KELVRA_TRY(DecodePreGrantedARQ(m.preGrantedARQ, r, mode));
    OpenTypeEnd(r);
  }
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasSupportsAdditiveRegistration) PerPassOverOpenType(r);
  if (m.hasTerminalAliasPattern)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.terminalAliasPattern), r, DecodeAddressPattern));
  if (m.hasSupportedPrefixes)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedPrefixes), r, DecodeSupportedPrefix));
  if (m.hasUsageSpec) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.usageSpec), r, DecodeRasUsageSpecification));
  if (m.hasFeatureServerAlias) KELVRA_TRY(DecodeOpen(m.featureServerAlias, r, DecodeAliasAddress));
  if (m.hasCapacityReportingSpec)
    KELVRA_TRY(DecodeOpen(m.capacityReportingSpec, r, DecodeCapacityReportingSpecification));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeRegistrationReject(RegistrationReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeRegistrationRejectReason(m.rejectReason, r));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 6);
  m.hasAltGKInfo = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeOpen(m.altGKInfo, r, DecodeAltGKInfo));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
