#include "h225/common/addresses_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

// url-ID and email-ID. The 16-bit length field can carry more than the 512 characters allowed.
Status DecodeInternetName(OctetStringValue& m, PerReader& r) {
  const auto length = PerReadNumber<uint32_t>(r, 1, 512);
  if (length > 512) return kExhausted;
  PerReadOctets(m, r, length);
  return kDecoded;
}

Status DecodeIpAddress(TransportAddress::IpAddress& m, PerReader& r) {
  PerReadOctets(m.ip, r, 4);
  m.port = PerReadNumber<uint16_t>(r, 0, 65535);
  return kDecoded;
}

Status DecodeRouteEntry(OctetStringValue& m, PerReader& r) {
  PerReadOctets(m, r, 4);
  return kDecoded;
}

// An extension alternative of `routing` leaves its index in the tag of the whole address.
Status DecodeIpSourceRoute(TransportAddress& m, PerReader& r) {
  TransportAddress::IpSourceRoute& source = m.ipSourceRoute;
  source.isExtended = PerReadBit(r);
  PerReadOctets(source.ip, r, 4);
  source.port = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(source.route), r, DecodeRouteEntry));
  source.routing.isExtension = PerReadBit(r);
  if (source.routing.isExtension) {
    m.choiceTag = static_cast<uint8_t>(PerReadNormallySmall(r));
    PerSkipOpenTypes(r, 1);
  } else {
    source.routing.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 2));
  }
  if (source.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeIpxAddress(TransportAddress::IpxAddress& m, PerReader& r) {
  PerReadOctets(m.node, r, 6);
  PerReadOctets(m.netnum, r, 4);
  PerReadOctets(m.port, r, 2);
  return kDecoded;
}

Status DecodeIp6Address(TransportAddress::Ip6Address& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadOctets(m.ip, r, 16);
  m.port = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeSystemId(ANSI41UIM::SystemId& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    m.choiceTag = 0;  // the index is not kept
    return SkipAlternative(r);
  }
  switch (index) {
    case 0: PerReadSizedTBCDString(m.sid, r, 1, 4); return kDecoded;
    case 1: PerReadSizedTBCDString(m.mid, r, 1, 4); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodePublicTypeOfNumber(PublicTypeOfNumber& m, PerReader& r) { return DecodeNullChoice(m, r); }

Status DecodePrivateTypeOfNumber(PrivateTypeOfNumber& m, PerReader& r) { return DecodeNullChoice(m, r); }

}  // namespace

Status DecodeTransportAddress(TransportAddress& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeIpAddress(m.ipAddress, r);
    case 1: return DecodeIpSourceRoute(m, r);
    case 2: return DecodeIpxAddress(m.ipxAddress, r);
    case 3: return DecodeIp6Address(m.ip6Address, r);
    case 4: PerReadOctets(m.netBios, r, 16); return kDecoded;
    case 5: PerReadSizedOctets(m.nsap, r, 1, 20); return kDecoded;
    case 6: return DecodeNonStandardParameter(m.nonStandardAddress, r);
    default: return kMalformed;
  }
}

Status DecodePublicPartyNumber(PublicPartyNumber& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  KELVRA_TRY(DecodePublicTypeOfNumber(m.publicTypeOfNumber, r));
  PerReadSizedNibbles(m.publicNumberDigits, r, 1, 128);
  return kDecoded;
}

Status DecodePrivatePartyNumber(PrivatePartyNumber& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  KELVRA_TRY(DecodePrivateTypeOfNumber(m.privateTypeOfNumber, r));
  PerReadSizedNibbles(m.privateNumberDigits, r, 1, 128);
  return kDecoded;
}

Status DecodePartyNumber(PartyNumber& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 5);
  if (m.isExtension) {
    m.choiceTag = 0;  // the index is not kept
    return SkipAlternative(r);
  }
  switch (index) {
    case 0: return DecodePublicPartyNumber(m.e164Number, r);
    case 1: PerReadSizedNibbles(m.dataPartyNumber, r, 1, 128); return kDecoded;
    case 2: PerReadSizedNibbles(m.telexPartyNumber, r, 1, 128); return kDecoded;
    case 3: return DecodePrivatePartyNumber(m.privateNumber, r);
    case 4: PerReadSizedNibbles(m.nationalStandardPartyNumber, r, 1, 128); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeANSI41UIM(ANSI41UIM& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 12);
  m.isExtended = flags.Next();
  m.hasImsi = flags.Next();
  m.hasMin = flags.Next();
  m.hasMdn = flags.Next();
  m.hasMsisdn = flags.Next();
  m.hasEsn = flags.Next();
  m.hasMscid = flags.Next();
  m.hasSystemMyTypeCode = flags.Next();
  m.hasSystemAccessType = flags.Next();
  m.hasQualificationInformationCode = flags.Next();
  m.hasSesn = flags.Next();
  m.hasSoc = flags.Next();
  if (m.hasImsi) PerReadSizedTBCDString(m.imsi, r, 3, 16);
  if (m.hasMin) PerReadSizedTBCDString(m.min, r, 3, 16);
  if (m.hasMdn) PerReadSizedTBCDString(m.mdn, r, 3, 16);
  if (m.hasMsisdn) PerReadSizedTBCDString(m.msisdn, r, 3, 16);
  if (m.hasEsn) PerReadTBCDString(m.esn, r, 16);
  if (m.hasMscid) PerReadSizedTBCDString(m.mscid, r, 3, 16);
  KELVRA_TRY(DecodeSystemId(m.systemId, r));
  if (m.hasSystemMyTypeCode) PerReadOctets(m.systemMyTypeCode, r, 1);
  if (m.hasSystemAccessType) PerReadOctets(m.systemAccessType, r, 1);
  if (m.hasQualificationInformationCode) PerReadOctets(m.qualificationInformationCode, r, 1);
  if (m.hasSesn) PerReadTBCDString(m.sesn, r, 16);
  if (m.hasSoc) PerReadSizedTBCDString(m.soc, r, 3, 16);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeGSMUIM(GSMUIM& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 7);
  m.isExtended = flags.Next();
  m.hasImsi = flags.Next();
  m.hasTmsi = flags.Next();
  m.hasMsisdn = flags.Next();
  m.hasImei = flags.Next();
  m.hasHplmn = flags.Next();
  m.hasVplmn = flags.Next();
  if (m.hasImsi) PerReadSizedTBCDString(m.imsi, r, 3, 16);
  // An OCTET STRING, read as digits like the others.
  if (m.hasTmsi) PerReadSizedTBCDString(m.tmsi, r, 1, 4);
  if (m.hasMsisdn) PerReadSizedTBCDString(m.msisdn, r, 3, 16);
  if (m.hasImei) PerReadSizedTBCDString(m.imei, r, 15, 16);
  if (m.hasHplmn) PerReadSizedTBCDString(m.hplmn, r, 1, 4);
  if (m.hasVplmn) PerReadSizedTBCDString(m.vplmn, r, 1, 4);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeMobileUIM(MobileUIM& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    m.choiceTag = 0;  // the index is not kept
    return SkipAlternative(r);
  }
  switch (index) {
    case 0: return DecodeANSI41UIM(m.ansi41Uim, r);
    case 1: return DecodeGSMUIM(m.gsmUim, r);
    default: return kMalformed;
  }
}

Status DecodeAliasAddress(AliasAddress& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.urlID, r, DecodeInternetName);
      case 1: return DecodeOpen(m.transportID, r, DecodeTransportAddress);
      case 2: return DecodeOpen(m.emailID, r, DecodeInternetName);
      case 3: return DecodeOpen(m.partyNumber, r, DecodePartyNumber);
      case 4: return DecodeOpen(m.mobileUIM, r, DecodeMobileUIM);
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0: PerReadSizedNibbles(m.dialedDigits, r, 1, 128); return kDecoded;
    case 1: PerReadSizedBMPString(m.h323ID, r, 1, 256); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeExtendedAliasAddress(ExtendedAliasAddress& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasPresentationIndicator = flags.Next();
  m.hasScreeningIndicator = flags.Next();
  KELVRA_TRY(DecodeAliasAddress(m.address, r));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodePresentationIndicator(m.presentationIndicator, r));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeScreeningIndicator(m.screeningIndicator, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
