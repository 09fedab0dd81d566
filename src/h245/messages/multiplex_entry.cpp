#include "h245/decode.h"
#include "h245/messages/multiplex_entry_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeMultiplexElement(MultiplexElement& m, PerReader& r);

void DecodeType(MultiplexElement::Type& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 0: m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 0, 65535); return;
    case 1: KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.subElementList), r, 2, 255, DecodeMultiplexElement)); return;
    default: return;
  }
}

void DecodeRepeatCount(MultiplexElement::RepeatCount& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 0: m.finite = PerReadNumber<uint16_t>(r, 1, 65535); return;
    default: return;
  }
}

void DecodeMultiplexElement(MultiplexElement& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  DecodeType(m.type, r);
  DecodeRepeatCount(m.repeatCount, r);
}

void DecodeMultiplexEntryDescriptor(MultiplexEntryDescriptor& m, PerReader& r) {
  m.hasElementList = PerReadBit(r);
  m.multiplexTableEntryNumber = PerReadNumber<uint8_t>(r, 1, 15);
  if (m.hasElementList) {
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.elementList), r, 1, 256, DecodeMultiplexElement));
  }
}

// SET (SIZE (1..15)) OF MultiplexTableEntryNumber.
Status DecodeEntryNumbers(ListIn<uint8_t, uint8_t> list, PerReader& r) {
  return DecodeSizedSequenceOf(list, r, 1, 15, PerReadElement<uint8_t, 1, 15>);
}

template <class CauseNames>
void DecodeRejection(MultiplexEntryRejection<CauseNames>& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.multiplexTableEntryNumber = PerReadNumber<uint8_t>(r, 1, 15);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeMultiplexEntrySend(MultiplexEntrySend& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  KELVRA_OR_STOP(
      DecodeSizedSequenceOf(KELVRA_LIST(m.multiplexEntryDescriptors), r, 1, 15, DecodeMultiplexEntryDescriptor));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplexEntrySendAck(MultiplexEntrySendAck& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  KELVRA_OR_STOP(DecodeEntryNumbers(KELVRA_LIST(m.multiplexTableEntryNumber), r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplexEntrySendReject(MultiplexEntrySendReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.rejectionDescriptions), r, 1, 15,
                                       DecodeRejection<MultiplexEntrySendCauseNames>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplexEntrySendRelease(MultiplexEntrySendRelease& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeEntryNumbers(KELVRA_LIST(m.multiplexTableEntryNumber), r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestMultiplexEntry(RequestMultiplexEntry& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeEntryNumbers(KELVRA_LIST(m.entryNumbers), r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestMultiplexEntryReject(RequestMultiplexEntryReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeEntryNumbers(KELVRA_LIST(m.entryNumbers), r));
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.rejectionDescriptions), r, 1, 15,
                                       DecodeRejection<RequestMultiplexEntryCauseNames>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
