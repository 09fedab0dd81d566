#include "hostile/message_cost.h"

#include "h225/call/q931_frame.h"
#include "kelvra/h225/call/h323_user_information.h"
#include "kelvra/h225/ras/ras_message.h"
#include "kelvra/h245/messages/h245_message.h"
#include "per/decoder.h"
#include "per/reader.h"
#include "record/release.h"

namespace kelvra::test {
namespace {

// Moves `reader` to the user information; false if there is none.
bool BeginUserInformation(PerReader& reader, const std::vector<uint8_t>& octets) {
  const h225::Q931Frame frame = h225::FrameOf(octets.data(), static_cast<int32_t>(octets.size()));
  h225::Q931Element element{};
  if (h225::FindQ931Element(&frame, h225::kUserUser, &element) != h225::kQ931Decoded) return false;
  h225::BeginUserInformation(reader, frame, element);
  return true;
}

// The cost of `decode` according to the reader.
template <class Decode>
MessageCost CostOfDecode(PerReader& reader, Decode decode) {
  const uint32_t allowance = reader.allowance;
  decode(reader);
  return {reader.reread, allowance - reader.allowance};
}

}  // namespace

MessageCost CostOf(Family family, const std::vector<uint8_t>& octets) {
  PerReader reader;
  PerReaderInit(reader, octets.data(), static_cast<uint16_t>(octets.size()));
  switch (family) {
    case Family::kRas:
      return CostOfDecode(reader, [](PerReader& r) {
        h225::RasMessageRecord record{};
        static_cast<void>(Decode(record, r));
        Release(record, ReleaseVisitor(h225::kReleasePath));
      });
    case Family::kQ931:
      if (!BeginUserInformation(reader, octets)) return {};
      return CostOfDecode(reader, [](PerReader& r) {
        h225::H323UserInformation record{};
        static_cast<void>(Decode(record, r));
        Release(record, ReleaseVisitor(h225::kReleasePath));
      });
    case Family::kH245:
      return CostOfDecode(reader, [](PerReader& r) {
        h245::H245MessageRecord record{};
        static_cast<void>(Decode(record, r));
        Release(record, ReleaseVisitor(h245::kReleasePath));
      });
  }
  return {};
}

}  // namespace kelvra::test
