#include "h245/capabilities/data_protocol_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeParameterIdentifier(ParameterIdentifier& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: m.standard = PerReadNumber<uint8_t>(r, 0, 127); return;
    case 1: return DecodeNonStandardParameter(m.h221NonStandard, r);
    case 2: return PerReadOctets(m.uuid, r, 16);
    case 3: return PerReadSizedOctets(m.domainBased, r, 1, 64);
    default: return;
  }
}

}  // namespace

void DecodeCapabilityIdentifier(CapabilityIdentifier& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return PerReadObjectIdentifier(m.standard, r);
    case 1: return DecodeNonStandardParameter(m.h221NonStandard, r);
    case 2: return PerReadOctets(m.uuid, r, 16);
    case 3: return PerReadSizedOctets(m.domainBased, r, 1, 64);
    default: return;
  }
}

void DecodeParameterValue(ParameterValue& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 8);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: m.booleanArray = PerReadNumber<uint8_t>(r, 0, 255); return;
    case 2: m.unsignedMin = PerReadNumber<uint16_t>(r, 0, 65535); return;
    case 3: m.unsignedMax = PerReadNumber<uint16_t>(r, 0, 65535); return;
    case 4: m.unsigned32Min = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum); return;
    case 5: m.unsigned32Max = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum); return;
    case 6: return PerReadAnnouncedOctetString(m.octetString, r);
    case 7: KELVRA_OR_STOP(DecodeSequenceOf(ListOf(m.genericParameter), r, DecodeGenericParameter)); return;
    default: return;
  }
}

void DecodeGenericParameter(GenericParameter& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSupersedes = flags.Next();
  DecodeParameterIdentifier(m.parameterIdentifier, r);
  DecodeParameterValue(m.parameterValue, r);
  if (m.hasSupersedes) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.supersedes), r, DecodeParameterIdentifier));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeGenericCapability(GenericCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasMaxBitRate = flags.Next();
  m.hasCollapsing = flags.Next();
  m.hasNonCollapsing = flags.Next();
  m.hasNonCollapsingRaw = flags.Next();
  m.hasTransport = flags.Next();
  DecodeCapabilityIdentifier(m.capabilityIdentifier, r);
  if (m.hasMaxBitRate) m.maxBitRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasCollapsing) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.collapsing), r, DecodeGenericParameter));
  if (m.hasNonCollapsing) KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.nonCollapsing), r, DecodeGenericParameter));
  if (m.hasNonCollapsingRaw) PerReadAnnouncedOctetString(m.nonCollapsingRaw, r);
  if (m.hasTransport) DecodeDataProtocolCapability(m.transport, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
