#include "h225/common/addresses_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h245/capabilities/data_protocol_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeTunnelledProtocolAlternateIdentifier(TunnelledProtocolAlternateIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasProtocolVariant = flags.Next();
  PerReadSizedOctets(m.protocolType, r, 1, 64);
  if (m.hasProtocolVariant) PerReadSizedOctets(m.protocolVariant, r, 1, 64);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeId(TunnelledProtocol::Id& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: PerReadObjectIdentifier(m.tunnelledProtocolObjectID, r); return kDecoded;
    case 1: return DecodeTunnelledProtocolAlternateIdentifier(m.tunnelledProtocolAlternateID, r);
    default: return kMalformed;
  }
}

void DecodeSet(OctetStringValue& m, PerReader& r) { PerReadBitString(m, r, 32); }

Status DecodeGatekeeperInfo(GatekeeperInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeProtocolCaps(ProtocolCaps& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasDataRatesSupported = known.Next();
  m.hasSupportedPrefixes = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasDataRatesSupported) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.dataRatesSupported), r, DecodeDataRate));
  if (m.hasSupportedPrefixes)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedPrefixes), r, DecodeSupportedPrefix));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeNonStandardProtocol(NonStandardProtocol& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasDataRatesSupported = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasDataRatesSupported) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.dataRatesSupported), r, DecodeDataRate));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.supportedPrefixes), r, DecodeSupportedPrefix));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeT38FaxAnnexbOnlyCaps(T38FaxAnnexbOnlyCaps& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasDataRatesSupported = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasDataRatesSupported) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.dataRatesSupported), r, DecodeDataRate));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.supportedPrefixes), r, DecodeSupportedPrefix));
  // The H.245 decoders report nothing, so their failures are told here.
  if (PerAtEnd(r)) return kExhausted;
  h245::DecodeDataProtocolCapability(m.t38FaxProtocol, r);
  if (!m.t38FaxProtocol.isExtension && m.t38FaxProtocol.choiceTag > 6) return kMalformed;
  if (PerAtEnd(r)) return kExhausted;
  h245::DecodeT38FaxProfile(m.t38FaxProfile, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeVendorIdentifier(VendorIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasProductId = flags.Next();
  m.hasVersionId = flags.Next();
  KELVRA_TRY(DecodeH221NonStandard(m.vendor, r));
  if (m.hasProductId) PerReadSizedOctets(m.productId, r, 1, 256);
  if (m.hasVersionId) PerReadSizedOctets(m.versionId, r, 1, 256);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeDataRate(DataRate& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasChannelMultiplier = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  m.channelRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasChannelMultiplier) m.channelMultiplier = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeSupportedPrefix(SupportedPrefix& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeAliasAddress(m.prefix, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeSupportedProtocols(SupportedProtocols& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 9);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.nonStandardProtocol, r, DecodeNonStandardProtocol);
      case 1: return DecodeOpen(m.t38FaxAnnexbOnly, r, DecodeT38FaxAnnexbOnlyCaps);
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandardData, r);
    case 1: return DecodeProtocolCaps(m.h310, r);
    case 2: return DecodeProtocolCaps(m.h320, r);
    case 3: return DecodeProtocolCaps(m.h321, r);
    case 4: return DecodeProtocolCaps(m.h322, r);
    case 5: return DecodeProtocolCaps(m.h323, r);
    case 6: return DecodeProtocolCaps(m.h324, r);
    case 7: return DecodeProtocolCaps(m.voice, r);
    case 8: return DecodeProtocolCaps(m.t120Only, r);
    default: return kMalformed;
  }
}

Status DecodeGatewayInfo(GatewayInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasProtocol = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasProtocol) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.protocol), r, DecodeSupportedProtocols));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeMcuInfo(McuInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasProtocol = PerReadAdditionBit(r, additions);
  PerNoteUnknownAdditions(r, additions);
  if (m.hasProtocol) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.protocol), r, DecodeSupportedProtocols));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeTunnelledProtocol(TunnelledProtocol& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSubIdentifier = flags.Next();
  KELVRA_TRY(DecodeId(m.id, r));
  if (m.hasSubIdentifier) PerReadSizedOctets(m.subIdentifier, r, 1, 64);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeEndpointType(EndpointType& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 7);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasVendor = flags.Next();
  m.hasGatekeeper = flags.Next();
  m.hasGateway = flags.Next();
  m.hasMcu = flags.Next();
  m.hasTerminal = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasVendor) KELVRA_TRY(DecodeVendorIdentifier(m.vendor, r));
  if (m.hasGatekeeper) KELVRA_TRY(DecodeGatekeeperInfo(m.gatekeeper, r));
  if (m.hasGateway) KELVRA_TRY(DecodeGatewayInfo(m.gateway, r));
  if (m.hasMcu) KELVRA_TRY(DecodeMcuInfo(m.mcu, r));
  if (m.hasTerminal) KELVRA_TRY(DecodeGatekeeperInfo(m.terminal, r));
  flags = PerReadFlags(r, 2);
  m.mc = flags.Next();
  m.undefinedNode = flags.Next();
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasSet = known.Next();
  m.hasSupportedTunnelledProtocols = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasSet) DecodeOpen(m.set, r, DecodeSet);
  if (m.hasSupportedTunnelledProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedTunnelledProtocols), r, DecodeTunnelledProtocol));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
