#include "decode/decoded_message.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

#include "decode/q931_frame.h"
#include "decode/tree_builder.h"
#include "kelvra/kelvra.h"
#include "observer/observer.h"

namespace {

using kelvra::DecodeEnd;
using kelvra::PerCause;
using kelvra::h225::Q931MessageRecord;
using kelvra::h225::RasMessageRecord;
using kelvra::h245::H245MessageRecord;

// The exports use only 16 bits of a length.
constexpr size_t kMostOctets = std::numeric_limits<uint16_t>::max();
constexpr uint32_t kUsualSpareOctets = 1;
constexpr uint32_t kMostSpareOctets = 64;
constexpr uint32_t kLastVersion = 4;

constexpr kelvra::ObserverRules kRules{true, true};

// The last record that was released, for the next message: the heap is slow with blocks as large.
template <class Record>
thread_local std::unique_ptr<Record> spare_record;

template <class Record, void(KELVRA_CALL* kRelease)(Record*)>
Record& NewRecord(DecodedMessage& decoded) {
  if (!spare_record<Record>) spare_record<Record> = std::make_unique<Record>();
  Record* record = spare_record<Record>.release();
  decoded.record = {record, RecordDeleter{[](void* released) {
                      auto* used = static_cast<Record*>(released);
                      kRelease(used);
                      *used = {};
                      spare_record<Record>.reset(used);
                    }}};
  return *record;
}

uint32_t OctetsOf(uint64_t bits) { return static_cast<uint32_t>((bits + 7) / 8); }

// --- Faults ---

struct Words {
  Verdict verdict;
  const char* cause;
};

Words WordsOf(PerCause cause) {
  switch (cause) {
    case PerCause::kEndOfOpenType: return {Verdict::kMalformed, "the open type around it ends here"};
    case PerCause::kLengthPastEnd: return {Verdict::kClaimsTooMuch, "a length announces more octets than there are"};
    case PerCause::kFragmentedLength: return {Verdict::kClaimsTooMuch, "a length in fragments, which is not read"};
    case PerCause::kNumberTooWide: return {Verdict::kMalformed, "a number or length is too large"};
    case PerCause::kUndefinedIndex: return {Verdict::kMalformed, "no alternative has this index"};
    case PerCause::kRefusedBlock: return {Verdict::kLimitReached, "the memory for it was refused"};
    case PerCause::kTooMuchMemory: return {Verdict::kLimitReached, "it takes more memory than a message may"};
    case PerCause::kTooDeep: return {Verdict::kLimitReached, "it nests deeper than a message may"};
    case PerCause::kTooMuchRereading:
      return {Verdict::kLimitReached, "more octets are read again than a message may have"};
    case PerCause::kUnknownVersion: return {Verdict::kVersionRefused, "it names no version of H.225.0"};
    case PerCause::kNone:
    case PerCause::kEndOfMessage: break;
  }
  return {Verdict::kEndedEarly, "the message ends here"};
}

// The prefix of the observer's paths, down to the body of the message.
std::string PathOfBody(const DecodedMessage& decoded) {
  std::string path(decoded.name);
  if (decoded.family == Family::kQ931) return "h323-uu-pdu.h323-message-body." + path;
  const std::string_view messageClass = decoded.Root().Alternative();
  if (decoded.family == Family::kH245 && messageClass != decoded.name) return std::string(messageClass) + "." + path;
  return path;
}

void AddFault(DecodedMessage& decoded, Verdict verdict, std::string member, uint64_t bit, std::string cause) {
  decoded.faults.push_back({verdict, std::move(member), bit, std::move(cause), false});
}

// `size` is the size of the decoded part, in octets.
void AddStops(DecodedMessage& decoded, const DecodeLog& log, uint32_t firstBit, uint32_t size) {
  if (log.Stops().empty()) return;
  const std::string body = PathOfBody(decoded) + ".";
  for (const DecodeLog::Stop& stop : log.Stops()) {
    const Words words = WordsOf(stop.fault.cause);
    std::string member = stop.fault.path;
    if (member.starts_with(body)) member.erase(0, body.size());
    // An open type whose length is too large takes the reader past the end.
    const uint64_t bit = std::min<uint64_t>(stop.fault.reached, uint64_t{size} * 8);
    AddFault(decoded, words.verdict, std::move(member), firstBit + bit, words.cause);
    decoded.faults.back().resumed = stop.resumed;
  }
}

void AddLeftOver(DecodedMessage& decoded, uint32_t octets, uint64_t bit, const char* where) {
  if (octets == 0) return;
  decoded.octetsLeftOver += octets;
  AddFault(decoded, Verdict::kOctetsLeftOver, "", bit,
           std::to_string(octets) + (octets == 1 ? " octet" : " octets") + " left over" + where);
}

// Adds the octets that a decode of `size` octets left unread.
void AddRest(DecodedMessage& decoded, const DecodeLog& log, const DecodeEnd& end, uint32_t firstBit, uint32_t size,
             const char* where) {
  if (!log.Stops().empty() && !log.Stops().back().resumed) return;
  if (log.Stops().empty() && end.status != kelvra::kDecoded) {
    return AddFault(decoded, Verdict::kEndedEarly, "", firstBit + end.bit, WordsOf(PerCause::kEndOfMessage).cause);
  }
  const uint32_t read = OctetsOf(end.bit);
  if (read < size) AddLeftOver(decoded, size - read, firstBit + uint64_t{read} * 8, where);
}

// True if the decode did not stop; the library's own decode then ends the same way.
bool IsClean(const DecodeLog& log, const DecodeEnd& end) {
  return log.Stops().empty() && end.status == kelvra::kDecoded && !end.departed;
}

// itu-t recommendation h 2250 version N
uint32_t VersionOf(Node protocolIdentifier) {
  static constexpr std::array<uint32_t, 5> kArcs{0, 0, 8, 2250, 0};
  const auto arcs = protocolIdentifier.Arcs();
  if (arcs.size() != kArcs.size() + 1 || !std::equal(kArcs.begin(), kArcs.end(), arcs.begin())) return 0;
  return arcs.back();
}

void NoteVersion(DecodedMessage& decoded) {
  const Node identifier = decoded.Body()["protocolIdentifier"];
  decoded.senderVersion = VersionOf(identifier);
  const bool isRegistration = decoded.name == "registrationRequest" || decoded.name == "registrationConfirm";
  if (!isRegistration || identifier.Arcs().size() != 6 || identifier.Arcs().back() <= kLastVersion) return;
  decoded.readAsVersion4 = true;
  AddFault(decoded, Verdict::kVersionRefused, "protocolIdentifier", identifier.Bits().first,
           "version " + std::to_string(identifier.Arcs().back()) + ", read as 4; the library refuses it");
  decoded.faults.back().resumed = true;
}

void Judge(DecodedMessage& decoded) {
  std::stable_sort(decoded.faults.begin(), decoded.faults.end(),
                   [](const MessageFault& a, const MessageFault& b) { return a.bit < b.bit; });
  const MessageFault* fault = decoded.Fault();
  decoded.verdict = fault != nullptr ? fault->verdict : Verdict::kComplete;
}

// --- RAS ---

int64_t ExportRas(std::span<const uint8_t> octets, uint32_t spare) {
  std::vector<uint8_t> padded(octets.begin(), octets.end());
  padded.resize(octets.size() + spare);
  const auto record = std::make_unique<RasMessageRecord>();
  const intptr_t end = KelvraDecodeRASMessage(record.get(), padded.data(), static_cast<uint32_t>(padded.size()));
  KelvraFreeRASMessage(record.get());
  return end == 0 ? 0 : end - reinterpret_cast<intptr_t>(padded.data());
}

uint32_t SpareOctetsRequired(std::span<const uint8_t> octets) {
  for (uint32_t spare = kUsualSpareOctets + 1; spare <= kMostSpareOctets; ++spare) {
    if (octets.size() + spare > kMostOctets) break;
    if (ExportRas(octets, spare) != 0) return spare;
  }
  return 0;
}

void DecodeRas(std::span<const uint8_t> octets, DecodeLog& log, DecodedMessage& decoded) {
  auto& record = NewRecord<RasMessageRecord, KelvraFreeRASMessage>(decoded);
  const auto size = static_cast<uint32_t>(octets.size());
  const DecodeEnd end = kelvra::ObserveRas(record, octets.data(), size, log, kRules);
  TreeBuilder(decoded.nodes, log, 0).Build(record);
  decoded.name = decoded.Root().Alternative();
  decoded.result = IsClean(log, end) ? OctetsOf(end.bit) : ExportRas(octets, kUsualSpareOctets);
  decoded.ok = decoded.result != 0;
  NoteVersion(decoded);
  AddStops(decoded, log, 0, size);
  AddRest(decoded, log, end, 0, size, "");
  if (decoded.faults.empty() && !decoded.ok) decoded.spareOctetsRequired = SpareOctetsRequired(octets);
}

// --- H.245 ---

void DecodeH245(std::span<const uint8_t> octets, DecodeLog& log, DecodedMessage& decoded) {
  auto& record = NewRecord<H245MessageRecord, KelvraFreeH245Message>(decoded);
  const auto size = static_cast<uint32_t>(octets.size());
  const DecodeEnd end = kelvra::ObserveH245(record, octets.data(), size, log, kRules);
  TreeBuilder(decoded.nodes, log, 0).Build(record);
  const std::string_view name = decoded.Root().Chosen().Alternative();
  decoded.name = name.empty() ? decoded.Root().Alternative() : name;
  // The export returns 1 if the reader stands exactly at the end after alignment.
  decoded.ok = (end.isAtEnd ? end.bit / 8 : OctetsOf(end.bit)) == size;
  decoded.result = decoded.ok ? 1 : 0;
  AddStops(decoded, log, 0, size);
  AddRest(decoded, log, end, 0, size, "");
}

// --- Call signalling ---

int64_t ExportQ931(Q931MessageRecord& record, std::span<const uint8_t> octets) {
  static constexpr uint8_t kNothing = 0;
  const uint8_t* buffer = octets.empty() ? &kNothing : octets.data();
  const int32_t result = KelvraDecodeQ931Message(&record, buffer, static_cast<int32_t>(octets.size()));
  KelvraFreeQ931Message(&record);
  std::memset(static_cast<void*>(&record.userInformation), 0, sizeof record.userInformation);
  return result;
}

// Faults of the frame outside the user information.
void AddFrameFaults(DecodedMessage& decoded, const Q931Elements& elements, uint32_t size) {
  const auto announced = elements.AnnouncedOctets();
  const bool isCut = !announced || *announced > size;
  const bool hasStopped = !decoded.faults.empty();
  const auto userUser = elements.UserUser();
  if (announced && *announced < size) {
    AddLeftOver(decoded, size - *announced, uint64_t{*announced} * 8, " after the TPKT packet");
  }
  if (const auto element = elements.CutOff(); element && !isCut) {
    const bool isUserUser = userUser && userUser->position == element->position;
    AddFault(decoded, Verdict::kClaimsTooMuch, isUserUser ? "h323-UserInformation" : "",
             uint64_t{element->position} * 8, "an information element announces more octets than there are");
  }
  if (isCut && !hasStopped) {
    const std::string all = announced ? " of " + std::to_string(*announced) : "";
    AddFault(decoded, Verdict::kEndedEarly, "", uint64_t{size} * 8,
             "the message ends here, after " + std::to_string(size) + all + " octets");
  } else if (!isCut && !userUser) {
    AddFault(decoded, Verdict::kMalformed, "h323-UserInformation", uint64_t{size} * 8, "there is no user-user element");
  } else if (!isCut && userUser->length == 0) {
    AddFault(decoded, Verdict::kMalformed, "h323-UserInformation", uint64_t{userUser->position} * 8,
             "the user-user element is empty");
  }
}

void DecodeQ931(std::span<const uint8_t> octets, DecodeLog& log, DecodedMessage& decoded) {
  auto& record = NewRecord<Q931MessageRecord, KelvraFreeQ931Message>(decoded);
  const auto size = static_cast<uint32_t>(octets.size());
  const Q931Elements elements(octets);
  const auto userUser = elements.UserUser();
  const bool hasContents = userUser && userUser->length > 0 && userUser->contents < size;
  // After the protocol discriminator.
  const uint32_t first = hasContents ? userUser->contents + 1 : size;
  const uint32_t length = hasContents ? std::min(userUser->length - 1, size - first) : 0;
  kelvra::h225::H323UserInformation information{};
  DecodeEnd end{};
  if (hasContents) end = kelvra::ObserveUserInformation(information, octets.data() + first, length, log, kRules);
  const bool isWhole = hasContents && IsClean(log, end) && !elements.CutOff() && elements.IsLast(*userUser);
  // The elements come before the user information, which then need not be decoded again.
  const int64_t result = ExportQ931(record, isWhole ? octets.first(userUser->position) : octets);
  decoded.result = isWhole ? 0 : result;
  decoded.ok = decoded.result == 0;
  record.userInformation = information;
  record.presenceMask |= kelvra::h225::kUserInformationPresent;
  TreeBuilder(decoded.nodes, log, first * 8, &elements).Build(record);
  decoded.name = decoded.Root().Find({"h323-UserInformation", "h323-uu-pdu", "h323-message-body"}).Alternative();
  NoteVersion(decoded);
  AddStops(decoded, log, first * 8, length);
  if (hasContents) AddRest(decoded, log, end, first * 8, length, " in the user-user element");
  AddFrameFaults(decoded, elements, size);
}

void DecodeTunnelled(DecodedMessage& decoded) {
  const Node pdu = decoded.Root().Find({"h323-UserInformation", "h323-uu-pdu"});
  for (const Node list : {pdu["h245Control"], decoded.Body()["parallelH245Control"]}) {
    for (const Node element : list) decoded.tunnelled.push_back(DecodeMessage(Family::kH245, element.Octets()));
  }
}

}  // namespace

const MessageFault* DecodedMessage::Fault() const {
  // A refused version comes last: it says least about what was read.
  const auto worst = std::find_if(faults.begin(), faults.end(), [](const MessageFault& fault) {
    return fault.verdict != Verdict::kVersionRefused || !fault.resumed;
  });
  if (worst != faults.end()) return &*worst;
  return faults.empty() ? nullptr : &faults.front();
}

Node DecodedMessage::Body() const {
  if (family == Family::kRas) return Root().Chosen();
  if (family == Family::kH245) return Root().Chosen().Chosen();
  return Root().Find({"h323-UserInformation", "h323-uu-pdu", "h323-message-body"}).Chosen();
}

DecodedMessage DecodeMessage(Family family, std::span<const uint8_t> octets) {
  // Keeps its memory between messages.
  static thread_local DecodeLog log;
  DecodedMessage decoded;
  decoded.family = family;
  if (octets.size() + (family == Family::kRas ? kUsualSpareOctets : 0) > kMostOctets) {
    decoded.verdict = Verdict::kTooLong;
    AddFault(decoded, Verdict::kTooLong, "", 0, "too long to be decoded");
    return decoded;
  }
  log.Clear();
  switch (family) {
    case Family::kRas: DecodeRas(octets, log, decoded); break;
    case Family::kQ931: DecodeQ931(octets, log, decoded); break;
    case Family::kH245: DecodeH245(octets, log, decoded); break;
  }
  Judge(decoded);
  if (family == Family::kQ931) DecodeTunnelled(decoded);
  return decoded;
}

std::vector<Announced> AnnouncedBy(const DecodedMessage& message) {
  std::vector<Announced> announced;
  const auto add = [&announced](Node address, Family family) {
    if (const auto endpoint = ToEndpoint(address)) announced.push_back({*endpoint, family});
  };
  const Node body = message.Body();
  if (message.family == Family::kQ931) add(body["h245Address"], Family::kH245);
  if (message.family != Family::kRas) return announced;
  // An address or a list of addresses.
  for (const Node addresses : {body["callSignalAddress"], body["destCallSignalAddress"]}) {
    if (!addresses.Is(NodeKind::kList)) add(addresses, Family::kQ931);
    for (const Node address : addresses) add(address, Family::kQ931);
  }
  return announced;
}
