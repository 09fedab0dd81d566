#include "h245/decode.h"
#include "h245/network_access_decode.h"
#include "h245/transport_address_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAddress(Q2931Address::Address& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return PerReadNumeric(m.internationalNumber, r, PerReadNumber<uint32_t>(r, 1, 16));
    case 1: return PerReadSizedOctets(m.nsapAddress, r, 20, 1);
    default: return;
  }
}

void DecodeNetworkAddress(NetworkAccessParameters::NetworkAddress& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeQ2931Address(m.q2931Address, r);
    case 1: return PerReadDigits(m.e164Address, r, PerReadNumber<uint32_t>(r, 1, 128));
    case 2: return DecodeTransportAddress(m.localAreaAddress, r);
    default: return;
  }
}

}  // namespace

void DecodeQ2931Address(Q2931Address& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasSubaddress = PerReadBit(r);
  DecodeAddress(m.address, r);
  if (m.hasSubaddress) PerReadSizedOctets(m.subaddress, r, 20, 1);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeNetworkAccessParameters(NetworkAccessParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasDistribution = PerReadBit(r);
  m.hasExternalReference = PerReadBit(r);
  if (m.hasDistribution) DecodeNullChoice(m.distribution, r);
  DecodeNetworkAddress(m.networkAddress, r);
  m.associateConference = PerReadBit(r);
  if (m.hasExternalReference) PerReadSizedOctets(m.externalReference, r, 255, 1);
  if (!m.isExtended) return;

  const uint8_t additions = PerReadBitmapLength8(r);
  m.hasT120SetupProcedure = PerReadAdditionBit(r, additions, 0);
  const int32_t unknown = PerCountUnknownAdditions(r, additions, 1);
  if (m.hasT120SetupProcedure) InOpenType(r, [&] { DecodeNullChoice(m.t120SetupProcedure, r); });
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
