#include "h245/channels/network_access_decode.h"
#include "h245/common/transport_address_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAddress(Q2931Address::Address& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return PerReadSizedNumericString(m.internationalNumber, r, 1, 16);
    case 1: return PerReadSizedOctets(m.nsapAddress, r, 1, 20);
    default: return;
  }
}

void DecodeNetworkAddress(NetworkAccessParameters::NetworkAddress& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeQ2931Address(m.q2931Address, r);
    case 1: return PerReadSizedNibbles(m.e164Address, r, 1, 128);
    case 2: return DecodeTransportAddress(m.localAreaAddress, r);
    default: return;
  }
}

}  // namespace

void DecodeQ2931Address(Q2931Address& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSubaddress = flags.Next();
  DecodeAddress(m.address, r);
  if (m.hasSubaddress) PerReadSizedOctets(m.subaddress, r, 1, 20);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeNetworkAccessParameters(NetworkAccessParameters& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasDistribution = flags.Next();
  m.hasExternalReference = flags.Next();
  if (m.hasDistribution) DecodeNullChoice(m.distribution, r);
  DecodeNetworkAddress(m.networkAddress, r);
  m.associateConference = PerReadBit(r);
  if (m.hasExternalReference) PerReadSizedOctets(m.externalReference, r, 1, 255);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasT120SetupProcedure = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasT120SetupProcedure) DecodeOpen(m.t120SetupProcedure, r, DecodeNullChoice);
  PerSkipOpenTypes(r, unknown);
}

}  // namespace kelvra::h245
