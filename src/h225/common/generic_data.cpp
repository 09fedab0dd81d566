#include "h225/common/addresses_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeGenericIdentifier(GenericIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: m.standard = PerReadExtensibleNumber(r, 0, 16383); return kDecoded;
    case 1: PerReadObjectIdentifier(m.oid, r); return kDecoded;
    case 2: return DecodeGloballyUniqueID(m.nonStandard, r);
    default: return kMalformed;
  }
}

Status DecodeContent(Content& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 12);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: PerReadAnnouncedOctetString(m.raw, r); return kDecoded;
    case 1: PerReadAnnouncedOctetString(m.text, r); return kDecoded;
    case 2: PerReadBMPString(m.unicode, r, PerReadLength(r)); return kDecoded;
    case 3: m.bool_ = PerReadBit(r); return kDecoded;
    case 4: m.number8 = PerReadNumber<uint8_t>(r, 0, 255); return kDecoded;
    case 5: m.number16 = PerReadNumber<uint16_t>(r, 0, 65535); return kDecoded;
    case 6: m.number32 = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum); return kDecoded;
    case 7: return DecodeGenericIdentifier(m.id, r);
    case 8: return DecodeAliasAddress(m.alias, r);
    case 9: return DecodeTransportAddress(m.transport, r);
    case 10: return DecodeSizedSequenceOf(ListOf(m.compound), r, 1, 512, DecodeEnumeratedParameter);
    case 11: return DecodeSizedSequenceOf(ListOf(m.nested), r, 1, 16, DecodeGenericData);
    default: return kMalformed;
  }
}

Status DecodeEnumeratedParameter(EnumeratedParameter& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const RecursionLevel level(r);
  if (level.TooDeep()) return kMalformed;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasContent = flags.Next();
  KELVRA_TRY(DecodeGenericIdentifier(m.id, r));
  if (m.hasContent) KELVRA_TRY(DecodeContent(m.content, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeGenericData(GenericData& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasParameters = flags.Next();
  KELVRA_TRY(DecodeGenericIdentifier(m.id, r));
  if (m.hasParameters) {
    KELVRA_TRY(DecodeSizedSequenceOf(KELVRA_LIST(m.parameters), r, 1, 512, DecodeEnumeratedParameter));
  }
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeFeatureSet(FeatureSet& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 5);
  m.isExtended = flags.Next();
  m.hasNeededFeatures = flags.Next();
  m.hasDesiredFeatures = flags.Next();
  m.hasSupportedFeatures = flags.Next();
  m.replacementFeatureSet = flags.Next();
  if (m.hasNeededFeatures) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.neededFeatures), r, DecodeGenericData));
  if (m.hasDesiredFeatures) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.desiredFeatures), r, DecodeGenericData));
  if (m.hasSupportedFeatures) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.supportedFeatures), r, DecodeGenericData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
