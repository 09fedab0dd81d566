#include "faults/message_corpus.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "message_text.h"

namespace kelvra::test {
namespace {

void Load(std::vector<Message>& messages, Family family, const std::string& file) {
  std::ifstream stream(KELVRA_TEST_DATA "/" + file);
  size_t number = 0;
  for (std::string line; std::getline(stream, line);) {
    const std::string alternative = StringMember(line, "alt");
    const std::string name = file + ":" + std::to_string(++number) + " " + alternative;
    messages.push_back({family, name, Hex(StringMember(line, "hex")), alternative});
  }
  if (number == 0) throw std::runtime_error("no messages in " + file);
}

template <class Record>
Record& Emplace(std::variant<h225::RasMessageRecord, h225::Q931MessageRecord, h245::H245MessageRecord>& record) {
  Record& emplaced = record.emplace<Record>();
  std::memset(static_cast<void*>(&emplaced), 0xA5, sizeof emplaced);
  return emplaced;
}

}  // namespace

const std::vector<Message>& Corpus() {
  static const std::vector<Message> corpus = [] {
    std::vector<Message> messages;
    Load(messages, Family::kRas, "ras.jsonl");
    Load(messages, Family::kQ931, "q931.jsonl");
    Load(messages, Family::kH245, "h245.jsonl");
    Load(messages, Family::kH245, "private-h245.jsonl");
    return messages;
  }();
  return corpus;
}

std::vector<Message> EarlierRegistrations() {
  constexpr uint8_t kProtocolIdentifier[] = {0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04};
  std::vector<Message> messages;
  for (const Message& message : Corpus()) {
    if (message.family != Family::kRas || message.alternative.find("registration") != 0) continue;
    Message earlier = message;
    const auto found = std::search(earlier.octets.begin(), earlier.octets.end(), std::begin(kProtocolIdentifier),
                                   std::end(kProtocolIdentifier));
    if (found == earlier.octets.end()) continue;
    for (const uint8_t version : {uint8_t{2}, uint8_t{3}}) {
      found[sizeof kProtocolIdentifier - 1] = version;
      messages.push_back(earlier);
    }
  }
  if (messages.empty()) throw std::runtime_error("no registrations");
  return messages;
}

DecodedMessage::DecodedMessage(Family family, const std::vector<uint8_t>& octets) : family_(family), buffer_(octets) {
  switch (family) {
    case Family::kRas: {
      const intptr_t end =
          KelvraDecodeRASMessage(&Emplace<h225::RasMessageRecord>(record_), buffer_.Data(), buffer_.Size());
      result_ = end == 0 ? -1 : int64_t{end} - reinterpret_cast<intptr_t>(buffer_.Data());
      break;
    }
    case Family::kQ931:
      result_ = KelvraDecodeQ931Message(&Emplace<h225::Q931MessageRecord>(record_), buffer_.Data(),
                                        static_cast<int32_t>(buffer_.Size()));
      break;
    case Family::kH245:
      result_ = KelvraDecodeH245Message(&Emplace<h245::H245MessageRecord>(record_), buffer_.Data(), buffer_.Size());
      break;
  }
}

RecordBlocks DecodedMessage::Blocks() {
  return std::visit([](auto& record) { return BlocksOf(record); }, record_);
}

void DecodedMessage::Release() {
  if (auto* ras = std::get_if<h225::RasMessageRecord>(&record_)) {
    KelvraFreeRASMessage(ras);
  } else if (auto* q931 = std::get_if<h225::Q931MessageRecord>(&record_)) {
    KelvraFreeQ931Message(q931);
  } else {
    KelvraFreeH245Message(&std::get<h245::H245MessageRecord>(record_));
  }
}

std::vector<uint8_t> WithSpare(Family family, const std::vector<uint8_t>& octets) {
  std::vector<uint8_t> handed = octets;
  if (family == Family::kRas) handed.push_back(0);
  return handed;
}

}  // namespace kelvra::test
