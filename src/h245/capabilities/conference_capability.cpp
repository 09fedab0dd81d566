#include "h245/capabilities/conference_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {

void DecodeConferenceCapability(ConferenceCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasNonStandardData)
    KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.nonStandardData), r, DecodeNonStandardParameter));
  m.chairControlCapability = PerReadBit(r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasVideoIndicateMixingCapability = known.Next();
  m.hasMultipointVisualizationCapability = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVideoIndicateMixingCapability) m.videoIndicateMixingCapability = PerReadOpenBoolean(r);
  if (m.hasMultipointVisualizationCapability) m.multipointVisualizationCapability = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

void DecodeUserInputCapability(UserInputCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 6);
  if (m.isExtension) return PerPassOverAlternative(r, index, 1);
  switch (index) {
    case 0: KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.nonStandard), r, 1, 16, DecodeNonStandardParameter)); return;
    default: return;
  }
}

}  // namespace kelvra::h245
