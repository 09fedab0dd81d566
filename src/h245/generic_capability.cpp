#include "h245/data_protocol_decode.h"
#include "h245/decode.h"
#include "h245/generic_capability_decode.h"
#include "h245/non_standard_decode.h"

namespace kelvra::h245 {

void DecodeCapabilityIdentifier(CapabilityIdentifier& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return PerReadObjectIdentifier(m.standard, r);
    case 1: return DecodeNonStandardParameter(m.h221NonStandard, r);
    case 2: return PerReadFixedOctets(m.uuid, r, 16);
    case 3: return PerReadSizedOctets(m.domainBased, r, 64, 1);
    default: return;
  }
}

void DecodeParameterIdentifier(ParameterIdentifier& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: m.standard = PerReadNumber<uint8_t>(r, 0, 127); return;
    case 1: return DecodeNonStandardParameter(m.h221NonStandard, r);
    case 2: return PerReadFixedOctets(m.uuid, r, 16);
    case 3: return PerReadSizedOctets(m.domainBased, r, 64, 1);
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
    case 6: return PerReadOctetString(m.octetString, r);
    case 7:
      if (!DecodeSequenceOf(r, &m.genericParameter.count, Slot<GenericParameter>(&m.genericParameter.elements),
                            DecodeGenericParameter))
        return;
      return;
    default: return;
  }
}

void DecodeGenericParameter(GenericParameter& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  m.isExtended = PerReadBit(r);
  m.hasSupersedes = PerReadBit(r);
  DecodeParameterIdentifier(m.parameterIdentifier, r);
  DecodeParameterValue(m.parameterValue, r);
  if (m.hasSupersedes)
    if (!DecodeSequenceOf(r, &m.supersedesCount, Slot<ParameterIdentifier>(&m.supersedes), DecodeParameterIdentifier))
      return;
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeGenericCapability(GenericCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasMaxBitRate = PerReadBit(r);
  m.hasCollapsing = PerReadBit(r);
  m.hasNonCollapsing = PerReadBit(r);
  m.hasNonCollapsingRaw = PerReadBit(r);
  m.hasTransport = PerReadBit(r);
  DecodeCapabilityIdentifier(m.capabilityIdentifier, r);
  if (m.hasMaxBitRate) m.maxBitRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasCollapsing)
    if (!DecodeSequenceOf(r, &m.collapsingCount, Slot<GenericParameter>(&m.collapsing), DecodeGenericParameter)) return;
  if (m.hasNonCollapsing)
    if (!DecodeSequenceOf(r, &m.nonCollapsingCount, Slot<GenericParameter>(&m.nonCollapsing), DecodeGenericParameter))
      return;
  if (m.hasNonCollapsingRaw) PerReadOctetString(m.nonCollapsingRaw, r);
  if (m.hasTransport) DecodeDataProtocolCapability(m.transport, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
