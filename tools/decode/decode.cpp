#include "decode/decode.h"

#include <limits>

#include "decode/json_path.h"
#include "decode/record_json.h"
#include "kelvra/kelvra.h"
#include "text/hex.h"

namespace {

using kelvra::h225::Q931MessageRecord;
using kelvra::h225::RasMessageRecord;
using kelvra::h245::H245MessageRecord;

// The exports see no more of a length.
constexpr size_t kMostOctets = std::numeric_limits<uint16_t>::max();

template <class Record, void(KELVRA_CALL* kRelease)(Record*)>
struct Decoding {
  Decoding() = default;
  Decoding(const Decoding&) = delete;
  Decoding& operator=(const Decoding&) = delete;
  ~Decoding() { kRelease(&record); }

  Record record{};
};

template <class Record>
void Keep(Record& record, Decoded& decoded) {
  RecordText text = RecordToText(record);
  decoded.json = std::move(text.json);
  decoded.name = std::move(text.name);
}

void DecodeRas(std::span<const uint8_t> message, size_t octets, Decoded& decoded) {
  Decoding<RasMessageRecord, KelvraFreeRASMessage> decoding;
  const auto length = static_cast<uint32_t>(octets + 1);
  const intptr_t end = KelvraDecodeRASMessage(&decoding.record, message.data(), length);
  decoded.ok = end != 0;
  const auto start = reinterpret_cast<uintptr_t>(message.data());
  decoded.result = decoded.ok ? static_cast<int64_t>(static_cast<uintptr_t>(end) - start) : 0;
  Keep(decoding.record, decoded);
}

void DecodeQ931(std::span<const uint8_t> message, size_t octets, Decoded& decoded) {
  Decoding<Q931MessageRecord, KelvraFreeQ931Message> decoding;
  const auto length = static_cast<int32_t>(octets);
  decoded.result = KelvraDecodeQ931Message(&decoding.record, message.data(), length);
  decoded.ok = decoded.result == 0;
  Keep(decoding.record, decoded);
}

void DecodeH245(std::span<const uint8_t> message, size_t octets, Decoded& decoded) {
  Decoding<H245MessageRecord, KelvraFreeH245Message> decoding;
  const auto length = static_cast<uint32_t>(octets);
  decoded.result = KelvraDecodeH245Message(&decoding.record, message.data(), length);
  decoded.ok = decoded.result == 1;
  Keep(decoding.record, decoded);
}

}  // namespace

Decoded Decode(Family family, std::span<const uint8_t> octets, Form form) {
  Decoded decoded;
  const size_t spare = family == Family::kRas ? 1 : 0;
  if (octets.size() + spare > kMostOctets) return decoded;
  // The octet behind the message, counted for RAS only, also keeps an empty one from being null.
  std::vector<uint8_t> padded(octets.begin(), octets.end());
  padded.push_back(0);
  switch (family) {
    case Family::kRas: DecodeRas(padded, octets.size(), decoded); break;
    case Family::kQ931: DecodeQ931(padded, octets.size(), decoded); break;
    case Family::kH245: DecodeH245(padded, octets.size(), decoded); break;
  }
  if (form == Form::kTree) decoded.message = Json::parse(decoded.json);
  return decoded;
}

std::vector<Decoded> DecodeTunnelled(const Json& message) {
  std::vector<Decoded> decoded;
  const Json& pdu = Find(message, {"h323-UserInformation", "h323-uu-pdu"});
  const Json& body = Chosen(UserInformationBody(message));
  for (const Json* list : {&Find(pdu, {"h245Control"}), &Find(body, {"parallelH245Control"})}) {
    for (const Json& element : *list) {
      decoded.push_back(Decode(Family::kH245, FromHex(element.get_ref<const std::string&>())));
    }
  }
  return decoded;
}
