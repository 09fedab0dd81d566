#include "hostile/hostile_messages.h"

#include "faults/channel_writer.h"
#include "h225/decoding.h"
#include "h225/q931_builder.h"
#include "per/reader.h"

namespace kelvra::test {
namespace {

using Octets = std::vector<uint8_t>;

constexpr uint32_t kLongestLength = 16383;

void Append(Octets& octets, const Octets& more) { octets.insert(octets.end(), more.begin(), more.end()); }

// Repeats `pattern` up to `size` octets.
Octets Filled(Octets octets, const Octets& pattern, size_t size) {
  while (octets.size() + pattern.size() <= size) Append(octets, pattern);
  octets.resize(size);
  return octets;
}

// --- H.245 ---

// A videoData channel up to the first open type: an extendedVideoCapability.
Octets ExtendedVideoChannel() {
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00011, 5).Bits(0b00, 2);  // openLogicalChannel
  message.Align().Bits(0, 16).Bits(0b00, 2);              // its number; parameters without portNumber
  message.Bits(0b0010, 4).Bit(true).NormallySmall(1);     // videoData: extendedVideoCapability
  return message.Align();
}

// Video capabilities nested to the maximum depth, each a list of 255 whose open types end after a few octets. The
// innermost skip as far as a length allows, and each of them reads the same octets there.
Octets RewoundVideoCapabilities(size_t size) {
  constexpr uint8_t kList[] = {0x03, 0x00, 0x80, 0xFF};
  const Octets wide = {0x81, 0x03, 0x00, 0x80, 0xFF};              // a list of 255 in an open type of 3 octets
  const Octets back = {0x80, 0x05, 0x82, 0x00, 0xBF, 0xFF, 0x00};  // 5 octets, of which a length says 16383
  const Octets bits = {0x80, 0x02, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
  Octets octets = ExtendedVideoChannel();
  octets.insert(octets.end(), std::begin(kList), std::end(kList));
  for (int level = 0; level < 32; ++level) Append(octets, wide);
  const size_t after = octets.size() + 6 + kLongestLength;
  for (int i = 0; i < 255; ++i) Append(octets, back);
  octets.resize(after < size ? after : size);
  for (int i = 0; i < 256 && octets.size() + bits.size() <= size; ++i) Append(octets, bits);
  octets.resize(octets.size() + 6404 < size ? octets.size() + 6404 : size, 0xFF);
  octets.resize(size);
  return octets;
}

// Nested streams: each open type ends where its own first element starts.
Octets RewoundPayloadStreams(size_t size) {
  BitWriter level;
  level.Bits(0, 1).Align().Length(255);            // 255 elements
  level.Bits(0b00, 2).Bit(true).NormallySmall(4);  // of which the first holds a multiplePayloadStream
  level.Align().Length(3);
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00011, 5).Bits(0b00, 2).Align().Bits(0, 16).Bits(0b00, 2);
  message.Bit(true).NormallySmall(4).Align().Length(3);
  return Filled(message, level, size);
}

// Elements that are only an object identifier, which claims the whole rest and never ends.
Octets ClaimedObjectIdentifiers(size_t size) {
  Octets octets = ExtendedVideoChannel();
  Append(octets, {0x03, 0x00, 0x80, 0xFF});
  // genericVideoCapability in 5 octets: capabilityIdentifier standard, of 16383 octets.
  for (int i = 0; i < 255; ++i) Append(octets, {0x80, 0x05, 0x00, 0x00, 0xBF, 0xFF, 0x05});
  octets.resize(size, 0x85);
  return octets;
}

// The same, with a length past the end.
Octets ObjectIdentifiersPastTheEnd(size_t size) {
  Octets octets = ExtendedVideoChannel();
  Append(octets, {0x03, 0x00, 0x80, 0xFF});
  return Filled(octets, {0x80, 0x05, 0x00, 0x00, 0xBF, 0xFF, 0x81}, size);
}

// Capabilities with an object identifier as long as fits. The open type around them ends with the longest possible
// length.
Octets LongObjectIdentifiers(size_t size) {
  const uint32_t each = static_cast<uint32_t>((size - 64) / 255);
  BitWriter message;
  BitWriter list;
  list.Bits(0b00, 2).Length(255);
  for (int i = 0; i < 255; ++i) {
    list.Bits(0b0000, 4).Bit(false).Align().Length(each - 7).Octets(Octets(each - 7, 0x01));  // nonStandard, object
    list.Length(0);
  }
  Octets octets = ExtendedVideoChannel();
  Append(octets, {0x80 | kLongestLength >> 8, 0xFF});
  Append(octets, list);
  octets.resize(size);
  return octets;
}

// Parameters nested to the maximum depth, each a list of 255 that continues in the next.
Octets NestedParameters(size_t size) {
  BitWriter capability;
  capability.Bits(0b001000, 6).Bits(0b000, 3).OpenType({0x2A, 3});  // collapsing alone; an identifier
  capability.Length(255);
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00011, 5).Bits(0b00, 2).Align().Bits(0, 16).Bits(0b00, 2);
  message.Bits(0b0011, 4).Bit(true).NormallySmall(6).Align();  // genericAudioCapability
  Octets octets = message;
  Append(octets, {0xBF, 0xFF});
  Append(octets, capability);
  BitWriter parameter;
  parameter.Bits(0b00, 2).Bits(0b000, 3).Bits(1, 7).Bits(0b0111, 4).Length(255);
  return Filled(octets, parameter, size);
}

// The value of an extendedVideoCapability ten open types deep. The innermost holds another, and a nonStandard with
// `data`.
Octets VideoCapabilitiesTenDeep(const Octets& data) {
  constexpr int kLevels = 10;
  BitWriter smallest;
  smallest.Bits(0b00, 2).Length(1).Bits(0b0001, 4).Bits(0b00, 2).Bit(false).Align().Bits(99, 16).Bit(false);
  BitWriter list;
  list.Bits(0b00, 2).Length(2);
  list.Bit(true).NormallySmall(1).OpenType(smallest);
  list.Bits(0b0000, 4).Bit(false).OpenType({1}).OpenType(data);
  for (int level = 1; level < kLevels; ++level) {
    BitWriter outer;
    outer.Bits(0b00, 2).Length(1).Bit(true).NormallySmall(1).OpenType(list);
    list = outer;
  }
  return list;
}

// 56 streams of 255 elements: nullData in the first, in the others nonStandard with an object identifier and an octet.
// The open type around them ends after a quarter of the longest message.
Octets PayloadStreams(size_t size) {
  constexpr uint32_t kStreams = 56;
  constexpr uint32_t kElements = 255;
  const auto stream = [](BitWriter& w, const BitWriter& elements) -> BitWriter& {
    return w.Bits(0b00, 2).Bit(true).NormallySmall(4).OpenType(elements);  // multiplePayloadStream
  };
  BitWriter smallest;
  smallest.Bit(false).Length(kElements);
  for (uint32_t i = 0; i < kElements; ++i) WriteNullDataType(smallest.Bits(0b00, 2));
  BitWriter nonStandard;
  nonStandard.Bit(false).Length(kElements);
  for (uint32_t i = 0; i < kElements; ++i) nonStandard.Bits(0, 2).Bits(0, 4).Bit(false).OpenType({1}).OpenType({7});
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00011, 5).Bits(0b00, 2).Align().Bits(0, 16).Bits(0b00, 2);
  message.Bit(true).NormallySmall(4).Length(kLongestLength).Bit(false).Length(kStreams);
  stream(message, smallest);
  while (message.Done().size() < size) stream(message, nonStandard);
  Octets octets = message;
  octets.resize(size);
  return octets;
}

// A DataType nested in itself `levels` times, through h235Media and the primary of a redundancyEncoding, which uses the
// most stack. Its open types are empty.
void NestedRedundantMedia(BitWriter& w, int levels) {
  if (levels == 0) return WriteNullDataType(w);
  w.Bit(true).NormallySmall(1).Length(0);  // h235Media
  w.Bit(false).Bits(0b0000, 4);            // encryptionAuthenticationAndIntegrity without a member
  w.Bit(true).NormallySmall(0).Length(0);  // mediaType: redundancyEncoding
  w.Bits(0b10, 2).Bits(0b01, 2);           // extended, without secondary; any method
  w.NormallySmall(0).Bit(true).Length(0);  // rtpRedundancyEncoding
  w.Bits(0b010, 3).Bits(0b00, 2);          // primary alone; its dataType
  NestedRedundantMedia(w, levels - 1);
}

Octets DeepestChannel() {
  return OpenLogicalChannelMessage([](BitWriter& w) { NestedRedundantMedia(w, kMaximumDepth); });
}

// The same as an element of fastStart.
BitWriter DeepestFastStart() {
  Octets channel = DeepestChannel();
  channel.erase(channel.begin());
  return BitWriter().Length(1).OpenType(channel);
}

// --- RAS ---

// An Endpoint whose nonStandardData has an object identifier, and a list of the given number of tokens that starts
// `distance` octets later.
Octets EndpointWithTokens(uint32_t distance, uint32_t tokens) {
  constexpr size_t kIdentifier = 64;
  Octets octets = {0xC0,
                   0x01,
                   0x40,
                   0,
                   0,
                   static_cast<uint8_t>((tokens - 1) >> 8),
                   static_cast<uint8_t>(tokens - 1),
                   0x20,
                   0x00,
                   static_cast<uint8_t>(0x80 | distance >> 8),
                   static_cast<uint8_t>(distance)};
  octets.resize(3 + kIdentifier);
  Append(octets, {0x00, 0x04, 0x40, 0x00});
  return octets;
}

// Endpoints that all read the same generic data after the last endpoint, in which empty open types hold bitmaps that
// claim 2^31 additions.
Octets RewoundEndpoints(size_t size) {
  constexpr uint32_t kEndpoints = 20;
  const Octets nested = {0x40, 0x00, 0x00, 0x44, 0x08, 0x00};
  Octets claim = {0x38, 1, 5, 21};
  claim.resize(claim.size() + 15);
  Append(claim, {0x80, 4, 0x7F, 0xFF, 0xFF, 0xFE});
  Octets octets = {0x02, 0x00, 0x00, 0x00, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04, 0x00,      0x7F,
                   0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x09, 0x80, 0x00, 0x00, 0x80, kEndpoints};
  const auto each = static_cast<uint32_t>(EndpointWithTokens(0, 1).size());
  const auto repeats = static_cast<uint32_t>((size - octets.size() - 21 * each) / (nested.size() + claim.size()));
  for (uint32_t i = 0; i <= kEndpoints; ++i) {
    Append(octets, EndpointWithTokens(each - 11 + (kEndpoints - i) * each, 1 + 2 * repeats));
  }
  for (uint32_t i = 0; i < repeats; ++i) {
    Append(octets, nested);
    Append(octets, claim);
  }
  octets.resize(size);
  return octets;
}

// A gatekeeperRequest up to its additions.
BitWriter GatekeeperRequestHead() {
  BitWriter message;
  message.Bits(0b000000, 6).Bits(0b10000, 5).Align().Bits(1, 16).OpenType(ProtocolIdentifier(4));
  IpAddress(message, 1, 1719);
  EmptyEndpointType(message);
  return message;
}

// The same with the bitmap of its additions, of which only the one at `index` is present.
BitWriter DiscoveryWith(uint32_t index) {
  BitWriter message = GatekeeperRequestHead();
  return Additions(message, Addition(index, 10), 10);
}

// Skipped additions, as many as fit: half of the message is their bitmap, the rest their open types, each starting with
// an octet of `length`.
Octets SkippedAdditions(size_t size, uint8_t length) {
  BitWriter message = GatekeeperRequestHead();
  message.NormallySmall(static_cast<uint32_t>(size * 4));
  Octets octets = message;
  octets.resize(size / 2, 0xFF);
  octets.resize(size, length);
  return octets;
}

// After the length of a list's open type: generic data whose parameters are lists of parameters, 512 wide at each
// level.
Octets WideGenericData(BitWriter& message, size_t size) {
  message.Length(kLongestLength).Length(255);
  message.Bit(false).Bit(true).Bits(0b0000, 4).Align().Bits(7, 16).Align().Bits(511, 16);  // 512 parameters
  BitWriter parameter;
  parameter.Bits(0b01, 2).Bits(0b0000, 4).Align().Bits(7, 16);
  parameter.Bits(0b01010, 5).Align().Bits(511, 16);  // compound, of 512
  return Filled(message, parameter, size);
}

Octets WideGenericDataOfARequest(size_t size) {
  BitWriter message = DiscoveryWith(9);
  return WideGenericData(message, size);
}

// Cryptographic tokens in empty open types.
Octets RewoundTokens(size_t size, uint8_t filler) {
  BitWriter message = DiscoveryWith(1);
  message.Length(0).Length(255);
  return Filled(message, {filler, 0x00}, size);
}

// Appends the PDU of a Setup up to its additions, of which only the one at `index` is present.
BitWriter& PduOfSetupWith(BitWriter& w, uint32_t index) {
  constexpr uint32_t kAdditions = 26;
  w.Bits(0b00, 2).Bits(0b0000, 4);  // no nonStandardData; setup
  w.Bit(true).Bits(0, 7).OpenType(ProtocolIdentifier(4));
  EmptyEndpointType(w).Bit(true).Octets(Rising(0x60, 16)).Bits(0, 3).Bits(0, 3);
  return Additions(w, Addition(index, kAdditions), kAdditions);
}

constexpr uint32_t kFastStart = 6;

// A call of an infoRequestResponse with these PDUs.
Octets CallWith(const BitWriter& pdus) {
  BitWriter call;
  call.Bit(true).Bits(0, 5).Align().Bits(77, 16).Octets(Rising(0x30, 16));
  call.Bits(0, 3).Bits(0, 3).Bits(0, 3).Bits(0, 2).Octets({5}).Bits(0, 2);
  return Additions(call, Addition(4, 8), 8).OpenType(pdus);
}

Octets ResponseWith(const std::vector<Octets>& calls) {
  BitWriter message;
  message.Bit(false).Bits(22, 5).Bit(false).Bits(0b001, 3).Align().Bits(0, 16);
  EmptyEndpointType(message).Bits(0, 7).Align().Bits('E', 16);
  IpAddress(message, 6, 1719).Length(0).Length(static_cast<uint32_t>(calls.size()));
  for (const Octets& call : calls) message.Octets(call);
  return message;
}

constexpr uint32_t kMostPdus = 255;

Octets CallOfEmptyPdus() {
  BitWriter pdus;
  pdus.Length(kMostPdus);
  for (uint32_t i = 0; i < kMostPdus; ++i) pdus.Bits(0b00, 2).Bit(true).NormallySmall(1).OpenType({0}).Bit(false);
  return CallWith(pdus);
}

// Conforming: calls with only empty PDUs, 255 per call.
Octets EmptyPdus(size_t size) {
  const Octets call = CallOfEmptyPdus();
  Octets octets = ResponseWith(std::vector<Octets>((size - 64) / call.size(), call));
  octets.resize(size);
  return octets;
}

// Empty PDUs with 255 one-octet supplementary services each.
Octets CallOfServices(size_t count) {
  BitWriter services;
  services.Length(255);
  for (int i = 0; i < 255; ++i) services.OpenType({1});
  BitWriter pdus;
  pdus.Length(static_cast<uint32_t>(count));
  for (size_t i = 0; i < count; ++i) {
    pdus.Bits(0b10, 2).Bit(true).NormallySmall(1).OpenType({0});
    Additions(pdus, Addition(0, 9), 9).OpenType(services).Bit(false);
  }
  return CallWith(pdus);
}

// Conforming: calls with as many empty PDUs as the block limit allows, then supplementary services.
Octets ServicesOfManyPdus(size_t size) {
  constexpr size_t kCallsOfEmptyPdus = 13;
  constexpr size_t kMostServicePdus = 24;  // what the open type of one call holds
  std::vector<Octets> calls(kCallsOfEmptyPdus, CallOfEmptyPdus());
  size_t left = size - 64 - kCallsOfEmptyPdus * calls[0].size();
  for (int i = 0; i < 4; ++i) {
    size_t pdus = kMostServicePdus;
    while (pdus != 0 && CallOfServices(pdus).size() > left) --pdus;
    if (pdus == 0) break;
    calls.push_back(CallOfServices(pdus));
    left -= calls.back().size();
  }
  Octets octets = ResponseWith(calls);
  octets.push_back(0);
  return octets;
}

// A PDU whose fast start holds the deepest channel.
Octets DeepestPdu() {
  BitWriter pdus;
  pdus.Length(1);
  PduOfSetupWith(pdus, kFastStart).OpenType(DeepestFastStart()).Bit(false);
  return ResponseWith({CallWith(pdus)});
}

// --- Call signalling ---

Octets Packet(const Octets& information, size_t size) {
  constexpr size_t kAround = 13;  // TPKT header, Q.931 header, user-user element
  Octets octets = information;
  octets.resize(size - kAround);
  return Q931Builder().UserUser(octets).Done();
}

// The user information of a Setup up to its additions, of which only the one at `index` is present.
BitWriter SetupWith(uint32_t index) {
  BitWriter information;
  information.Bits(0b00, 2);  // no user data
  return PduOfSetupWith(information, index);
}

constexpr uint32_t kTokens = 4;
constexpr uint32_t kDesiredFeatures = 22;

// Channels in open types of a few octets, each of which reads the video capabilities after the last channel.
Octets RewoundFastStart(size_t size) {
  Octets information = SetupWith(kFastStart).Length(kLongestLength).Length(255);
  Octets channel = ExtendedVideoChannel();
  channel.erase(channel.begin());
  Append(channel, {0x03, 0x00, 0x80, 0xFF});
  for (int i = 0; i < 255; ++i) {
    information.push_back(static_cast<uint8_t>(channel.size()));
    Append(information, channel);
  }
  for (int level = 0; level < 32; ++level) Append(information, {0x81, 0x03, 0x00, 0x80, 0xFF});
  information = Filled(information, {0x80, 0x05, 0x82, 0x00, 0xBF, 0xFF, 0x00}, size / 2);
  return Packet(Filled(information, {0x80, 0x02, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, size - 16), size);
}

// Conforming: as many of the smallest channels as one list holds.
Octets SmallestChannels(size_t size) {
  BitWriter information = SetupWith(kFastStart);
  BitWriter channels;
  channels.Length(255);
  for (uint16_t i = 1; i <= 255; ++i) channels.OpenType(NullChannel(i));
  return Packet(information.OpenType(channels), size);
}

Octets DeepestFastStartOfASetup() {
  const Octets information = SetupWith(kFastStart).OpenType(DeepestFastStart());
  return Packet(information, information.size() + 13);
}

Octets WideFeaturesOfASetup(size_t size) {
  BitWriter information = SetupWith(kDesiredFeatures);
  return Packet(WideGenericData(information, size - 16), size);
}

Octets RewoundSetupTokens(size_t size) {
  BitWriter information = SetupWith(kTokens);
  information.Length(0).Length(255);
  return Packet(Filled(information, {0x80, 0x00, 0x7F}, size - 16), size);
}

// Elements whose lengths form a cycle, so that the search finds none.
Octets CircularElements(size_t size) {
  Octets octets = {3, 0, 0, 0, 0x08, 0x02, 0x00, 0x01, 0x05};
  octets = Filled(octets, {0x01, 0x00}, size - 3);
  Append(octets, {0x7E, 0xFF, 0xFF});
  return octets;
}

Octets ElementsWithoutContents(size_t size) { return Filled({3, 0, 0, 0, 0x08, 0x02, 0x00, 0x01, 0x05}, {0xA0}, size); }

// The octets around the aliases of a registration, including the spare octet.
constexpr size_t kAroundAliases = 24;

// An alias whose `tmsi` has one octet. The decoder reads it as one digit, so everything after it is read at the wrong
// place and past the open type.
BitWriter AliasReadAgain() {
  BitWriter uim;
  uim.Bits(0b01, 2).Bits(0b0011011, 7);    // gsm-uim with tmsi, msisdn, hplmn and vplmn
  uim.Bits(0, 2).Octets({0xFF});           // tmsi
  uim.Bits(0, 4).Align().Bits(0xDDD, 12);  // msisdn, three digits
  uim.Bits(0, 2).Align().Bits(0xD, 4);     // hplmn, one digit
  uim.Bits(0, 2).Align().Bits(0xD, 4);     // vplmn, one digit
  return BitWriter().Bit(true).NormallySmall(4).OpenType(uim);
}

}  // namespace

uint32_t AliasesOfRegistration(size_t size) {
  return static_cast<uint32_t>((size - kAroundAliases) / AliasReadAgain().Done().size());
}

std::vector<uint8_t> RegistrationOfAliases(size_t size) {
  BitWriter message;
  message.Bit(false).Bits(3, 5).Bits(0b00, 2).Bits(0b10, 2).Align().Bits(1, 16).OpenType(ProtocolIdentifier(4));
  message.Bit(true).Length(0).Length(0);  // discoveryComplete; no addresses
  EmptyEndpointType(message).Length(AliasesOfRegistration(size));
  const Octets alias = AliasReadAgain();
  for (uint32_t i = 0; i < AliasesOfRegistration(size); ++i) message.Octets(alias);
  message.Bits(0, 4).Octets({181, 0, 0, 18});  // endpointVendor
  return message.Octets({0});
}

std::vector<uint8_t> CapabilitiesElevenDeep(size_t size) {
  constexpr int kTimes = 4;
  constexpr size_t kMostData = 15943;  // the room in the outermost open type
  constexpr size_t kAroundData = 1103;
  const size_t dataSize = size - kAroundData < kMostData ? size - kAroundData : kMostData;
  Octets data;
  for (uint32_t i = 0; data.size() < dataSize; ++i) Append(data, {0x00, 0x12, static_cast<uint8_t>(i)});
  data.resize(dataSize);
  for (int i = 0; i < kTimes; ++i) {
    const Octets inner = data;
    data = BitWriter().Octets({0x07, 0x0C, 0x08}).OpenType(VideoCapabilitiesTenDeep(inner));
  }
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00010, 5).Bits(0b0010, 4).Octets({1});          // terminalCapabilitySet
  message.OpenType({0x00, 0x08, 0x81, 0x75, 0x00, 0x07}).Bits(256 - 1, 8);      // capabilityTable
  message.Bit(true).Align().Bits(0x1110, 16).Bits(0b00001, 5);                  // receiveVideoCapability
  message.Bit(true).NormallySmall(1).OpenType(VideoCapabilitiesTenDeep(data));  // extendedVideoCapability
  for (uint16_t i = 0; i < 255; ++i) message.Bit(false).Align().Bits(0x2200U + i, 16);
  return message;
}

std::vector<Message> HostileMessages(size_t size) {
  return {
      {Family::kH245, "rewound video capabilities", RewoundVideoCapabilities(size)},
      {Family::kH245, "rewound payload streams", RewoundPayloadStreams(size)},
      {Family::kH245, "claimed object identifiers", ClaimedObjectIdentifiers(size)},
      {Family::kH245, "object identifiers past the end", ObjectIdentifiersPastTheEnd(size)},
      {Family::kH245, "long object identifiers", LongObjectIdentifiers(size)},
      {Family::kH245, "nested parameters", NestedParameters(size)},
      {Family::kH245, "payload streams", PayloadStreams(size)},
      {Family::kH245, "capabilities 11 deep", CapabilitiesElevenDeep(size)},
      {Family::kH245, "deepest channel", DeepestChannel()},
      {Family::kRas, "rewound endpoints", RewoundEndpoints(size)},
      {Family::kRas, "additions of no octet", SkippedAdditions(size, 0x00)},
      {Family::kRas, "additions of 100 octets", SkippedAdditions(size, 100)},
      {Family::kRas, "wide generic data", WideGenericDataOfARequest(size)},
      {Family::kRas, "rewound tokens", RewoundTokens(size, 0x80)},
      {Family::kRas, "rewound tokens of zeros", RewoundTokens(size, 0x00)},
      {Family::kRas, "empty PDUs", EmptyPdus(size)},
      {Family::kRas, "services of many PDUs", ServicesOfManyPdus(size)},
      {Family::kRas, "aliases that are read again", RegistrationOfAliases(size)},
      {Family::kRas, "deepest channel in a PDU", DeepestPdu()},
      {Family::kQ931, "rewound fast start", RewoundFastStart(size)},
      {Family::kQ931, "smallest channels", SmallestChannels(size)},
      {Family::kQ931, "deepest channel of a Setup", DeepestFastStartOfASetup()},
      {Family::kQ931, "wide features", WideFeaturesOfASetup(size)},
      {Family::kQ931, "rewound tokens of a Setup", RewoundSetupTokens(size)},
      {Family::kQ931, "elements in circles", CircularElements(size)},
      {Family::kQ931, "elements without contents", ElementsWithoutContents(size)},
  };
}

}  // namespace kelvra::test
