#include "h225/addresses_decode.h"
#include "h225/decode.h"
#include "h225/identifiers_decode.h"
#include "h225/non_standard_decode.h"

namespace kelvra::h225 {
namespace {

// url-ID and email-ID. The 16-bit length field can carry more than the 512 characters allowed.
Status DecodeInternetName(OctetStringValue& m, PerReader& r) {
  const auto length = PerReadNumber<uint32_t>(r, 1, 512);
  if (length > 512) return kExhausted;
  PerReadFixedOctets(m, r, length);
  return kDecoded;
}

Status DecodeIpAddress(TransportAddress::IpAddress& m, PerReader& r) {
  PerReadFixedOctets(m.ip, r, 4);
  m.port = PerReadNumber<uint16_t>(r, 0, 65535);
  return kDecoded;
}

// An extension alternative of `routing` leaves its index in the tag of the whole address.
Status DecodeIpSourceRoute(TransportAddress& m, PerReader& r) {
  TransportAddress::IpSourceRoute& source = m.ipSourceRoute;
  source.isExtended = PerReadBit(r);
  PerReadFixedOctets(source.ip, r, 4);
  source.port = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_TRY(DecodeSequenceOf(r, &source.routeCount, Slot<OctetStringValue>(&source.route),
                              [](OctetStringValue& value, PerReader& reader) -> Status {
                                PerReadFixedOctets(value, reader, 4);
                                return kDecoded;
                              }));
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
  PerReadFixedOctets(m.node, r, 6);
  PerReadFixedOctets(m.netnum, r, 4);
  PerReadFixedOctets(m.port, r, 2);
  return kDecoded;
}

Status DecodeIp6Address(TransportAddress::Ip6Address& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadFixedOctets(m.ip, r, 16);
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
    case 0: PerReadTBCD(m.sid, r, PerReadNumber<uint32_t>(r, 1, 4)); return kDecoded;
    case 1: PerReadTBCD(m.mid, r, PerReadNumber<uint32_t>(r, 1, 4)); return kDecoded;
    default: return kMalformed;
  }
}

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
    case 4: PerReadFixedOctets(m.netBios, r, 16); return kDecoded;
    case 5: PerReadSizedOctets(m.nsap, r, 20, 1); return kDecoded;
    case 6: return DecodeNonStandardParameter(m.nonStandardAddress, r);
    default: return kMalformed;
  }
}

Status DecodePublicPartyNumber(PublicPartyNumber& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  KELVRA_TRY(DecodeNullChoice(m.publicTypeOfNumber, r));
  PerReadDigits(m.publicNumberDigits, r, PerReadNumber<uint32_t>(r, 1, 128));
  return kDecoded;
}

Status DecodePrivatePartyNumber(PrivatePartyNumber& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  KELVRA_TRY(DecodeNullChoice(m.privateTypeOfNumber, r));
  PerReadDigits(m.privateNumberDigits, r, PerReadNumber<uint32_t>(r, 1, 128));
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
    case 1: PerReadDigits(m.dataPartyNumber, r, PerReadNumber<uint32_t>(r, 1, 128)); return kDecoded;
    case 2: PerReadDigits(m.telexPartyNumber, r, PerReadNumber<uint32_t>(r, 1, 128)); return kDecoded;
    case 3: return DecodePrivatePartyNumber(m.privateNumber, r);
    case 4: PerReadDigits(m.nationalStandardPartyNumber, r, PerReadNumber<uint32_t>(r, 1, 128)); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeANSI41UIM(ANSI41UIM& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasImsi = PerReadBit(r);
  m.hasMin = PerReadBit(r);
  m.hasMdn = PerReadBit(r);
  m.hasMsisdn = PerReadBit(r);
  m.hasEsn = PerReadBit(r);
  m.hasMscid = PerReadBit(r);
  m.hasSystemMyTypeCode = PerReadBit(r);
  m.hasSystemAccessType = PerReadBit(r);
  m.hasQualificationInformationCode = PerReadBit(r);
  m.hasSesn = PerReadBit(r);
  m.hasSoc = PerReadBit(r);
  if (m.hasImsi) PerReadTBCD(m.imsi, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasMin) PerReadTBCD(m.min, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasMdn) PerReadTBCD(m.mdn, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasMsisdn) PerReadTBCD(m.msisdn, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasEsn) PerReadTBCD(m.esn, r, 16);
  if (m.hasMscid) PerReadTBCD(m.mscid, r, PerReadNumber<uint32_t>(r, 3, 16));
  KELVRA_TRY(DecodeSystemId(m.systemId, r));
  if (m.hasSystemMyTypeCode) PerReadFixedOctets(m.systemMyTypeCode, r, 1);
  if (m.hasSystemAccessType) PerReadFixedOctets(m.systemAccessType, r, 1);
  if (m.hasQualificationInformationCode) PerReadFixedOctets(m.qualificationInformationCode, r, 1);
  if (m.hasSesn) PerReadTBCD(m.sesn, r, 16);
  if (m.hasSoc) PerReadTBCD(m.soc, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeGSMUIM(GSMUIM& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasImsi = PerReadBit(r);
  m.hasTmsi = PerReadBit(r);
  m.hasMsisdn = PerReadBit(r);
  m.hasImei = PerReadBit(r);
  m.hasHplmn = PerReadBit(r);
  m.hasVplmn = PerReadBit(r);
  if (m.hasImsi) PerReadTBCD(m.imsi, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasTmsi) PerReadTBCD(m.tmsi, r, PerReadNumber<uint32_t>(r, 1, 4));
  if (m.hasMsisdn) PerReadTBCD(m.msisdn, r, PerReadNumber<uint32_t>(r, 3, 16));
  if (m.hasImei) PerReadTBCD(m.imei, r, PerReadNumber<uint32_t>(r, 15, 16));
  if (m.hasHplmn) PerReadTBCD(m.hplmn, r, PerReadNumber<uint32_t>(r, 1, 4));
  if (m.hasVplmn) PerReadTBCD(m.vplmn, r, PerReadNumber<uint32_t>(r, 1, 4));
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
      case 0: return InOpenType(r, [&] { return DecodeInternetName(m.urlID, r); });
      case 1: return InOpenType(r, [&] { return DecodeTransportAddress(m.transportID, r); });
      case 2: return InOpenType(r, [&] { return DecodeInternetName(m.emailID, r); });
      case 3: return InOpenType(r, [&] { return DecodePartyNumber(m.partyNumber, r); });
      case 4: return InOpenType(r, [&] { return DecodeMobileUIM(m.mobileUIM, r); });
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0: PerReadDigits(m.dialedDigits, r, PerReadNumber<uint32_t>(r, 1, 128)); return kDecoded;
    case 1: PerReadCharacters16(m.h323ID, r, PerReadNumber<uint32_t>(r, 1, 256)); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeExtendedAliasAddress(ExtendedAliasAddress& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasPresentationIndicator = PerReadBit(r);
  m.hasScreeningIndicator = PerReadBit(r);
  KELVRA_TRY(DecodeAliasAddress(m.address, r));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodePresentationIndicator(m.presentationIndicator, r));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeScreeningIndicator(m.screeningIndicator, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
