#include "formats/details.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "decode/tree.h"
#include "decode/values.h"
#include "text/concat.h"
#include "text/names.h"
#include "text/utf8.h"

namespace {

using Names = std::initializer_list<std::string_view>;

class DetailList {
 public:
  void Add(std::string_view label, std::string_view value) {
    if (value.empty()) return;
    if (!text_.empty()) text_ += "  ";
    text_ += label;
    text_ += ' ';
    text_ += value;
  }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

std::string Quoted(std::string_view text) { return Concat({"\"", WithoutPadding(text), "\""}); }

bool IsText(Node node) {
  switch (node.Kind()) {
    case NodeKind::kRecord:
    case NodeKind::kList:
    case NodeKind::kNull:
    case NodeKind::kBoolean:
    case NodeKind::kNumber: return false;
    default: return true;
  }
}

// A number, a string, yes or no, an address, or the chosen alternative.
std::string ValueText(Node value) {
  if (IsText(value)) return Quoted(value.Text());
  if (value.Is(NodeKind::kNumber)) return value.Text();
  if (value.Is(NodeKind::kBoolean)) return *value.Number() != 0 ? "yes" : "no";
  if (const Node digits = PartyDigits(value["partyNumber"]); IsText(digits)) return Quoted(digits.Text());
  if (const auto endpoint = ToEndpoint(value)) return ToText(*endpoint);
  return IsText(value.Chosen()) ? Quoted(value.Chosen().Text()) : std::string(value.Alternative());
}

std::string Joined(const std::vector<std::string>& texts, const char* separator) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty()) joined += separator;
    joined += text;
  }
  return joined;
}

std::string ListText(Node list) {
  std::vector<std::string> texts;
  for (const Node element : list) texts.push_back(ValueText(element));
  return Joined(texts, ", ");
}

// The first member with a value.
std::string FirstOf(Node body, Names members) {
  for (const std::string_view member : members) {
    const Node value = body[member];
    std::string text = value.Is(NodeKind::kList) ? ListText(value) : ValueText(value);
    if (!text.empty()) return text;
  }
  return {};
}

void CollectMedia(Node node, std::vector<std::string>& media) {
  const auto channel = ToEndpoint(node["mediaChannel"]);
  const auto control = ToEndpoint(node["mediaControlChannel"]);
  if (channel || control) {
    const std::string text =
        Concat({channel ? ToText(*channel) : "-", control ? "/" : "", control ? ToText(*control) : ""});
    if (std::find(media.begin(), media.end(), text) == media.end()) media.push_back(text);
  }
  for (const Node member : node) CollectMedia(member, media);
}

// "media/control" of each channel, each pair once.
std::string MediaText(Node node) {
  std::vector<std::string> media;
  CollectMedia(node, media);
  return Joined(media, ", ");
}

// The call that a message, or a part of it, refers to. Bandwidth is in units of 100 bit/s.
void AddCall(Node call, DetailList& details) {
  details.Add("crv", FirstOf(call, {"callReferenceValue"}));
  details.Add("call", FirstOf(call["callIdentifier"], {"guid"}));
  details.Add("answer", FirstOf(call, {"answerCall", "answeredCall"}));
  details.Add("bandwidth", FirstOf(call, {"bandWidth", "allowedBandWidth"}));
}

void AddRas(const DecodedMessage& message, DetailList& details) {
  const Node body = message.Body();
  details.Add("seq", FirstOf(body, {"requestSeqNum"}));
  details.Add("reason", FirstOf(body, {"rejectReason", "nakReason", "disengageReason", "reason"}));
  details.Add("cause", FirstOf(body["terminationCause"], {"releaseCompleteReason", "releaseCompleteCauseIE"}));
  details.Add("result", FirstOf(body, {"result"}));
  details.Add("gk", FirstOf(body, {"gatekeeperIdentifier"}));
  details.Add("endpoint", FirstOf(body, {"endpointIdentifier"}));
  details.Add("alias", FirstOf(body, {"endpointAlias", "terminalAlias", "srcInfo", "sourceInfo"}));
  details.Add("alias", FirstOf(body["rejectReason"], {"duplicateAlias"}));
  details.Add("from", FirstOf(body, {"srcCallSignalAddress"}));
  details.Add("to", FirstOf(body, {"destinationInfo"}));
  details.Add("at", FirstOf(body, {"destCallSignalAddress", "callSignalAddress"}));
  details.Add("ras", FirstOf(body, {"rasAddress", "replyAddress"}));
  details.Add("ttl", FirstOf(body, {"timeToLive"}));
  details.Add("keepAlive", FirstOf(body, {"keepAlive"}));
  details.Add("delay", FirstOf(body, {"delay"}));
  details.Add("almostOut", FirstOf(body, {"almostOutOfResources"}));
  AddCall(body, details);
  AddCall(body["callSpecific"], details);
  for (const Node call : body["perCallInfo"]) AddCall(call, details);
}

// The octet also holds an extension bit.
std::string CauseText(Node octet) {
  const auto number = octet.Number();
  if (!number) return {};
  const auto cause = static_cast<unsigned>(*number & 0x7F);
  const std::string_view name = CauseName(cause);
  return Concat({std::to_string(cause), name.empty() ? "" : " ", name});
}

std::string CodecText(Node capability) {
  const Codec codec = CodecOf(capability);
  const std::string identifier = ValueText(codec.identifier);
  return Concat({codec.name, identifier.empty() ? "" : " ", identifier});
}

// The codec of a DataType or ModeElementType, or the kind of data.
std::string DataTypeText(Node dataType) {
  const std::string_view kind = dataType.Alternative();
  if (kind == "h235Media") return Concat({"encrypted ", DataTypeText(dataType.Find({"h235Media", "mediaType"}))});
  const Names withCodec = {"audioData", "videoData", "data", "audioMode", "videoMode", "dataMode"};
  const bool hasCodec = std::find(withCodec.begin(), withCodec.end(), kind) != withCodec.end();
  return hasCodec ? CodecText(dataType.Chosen()) : std::string(kind);
}

// The codecs that fast start offers or accepts, once for both directions.
std::string FastStartCodecs(Node fastStart, std::string_view parameters) {
  std::vector<std::string> codecs;
  for (const Node channel : fastStart) {
    const std::string codec = DataTypeText(channel.Find({parameters, "dataType"}));
    const bool isNew = std::find(codecs.begin(), codecs.end(), codec) == codecs.end();
    if (!codec.empty() && codec != "nullData" && isNew) codecs.push_back(codec);
  }
  return Joined(codecs, ", ");
}

bool NamesCodec(std::string_view capability) {
  return capability.ends_with("AudioCapability") || capability.ends_with("VideoCapability") ||
         capability.ends_with("DataApplicationCapability") || capability.ends_with("UserInputCapability");
}

std::string_view DirectionOf(std::string_view capability) {
  if (capability.starts_with("receiveAndTransmit")) return "both";
  return capability.starts_with("receive") ? "receive" : "transmit";
}

// The codecs of a capability table, grouped by direction.
void AddCapabilities(Node table, DetailList& details) {
  for (const char* direction : {"receive", "transmit", "both"}) {
    std::vector<std::string> codecs;
    for (const Node entry : table) {
      const Node capability = entry["capability"];
      const std::string_view name = capability.Alternative();
      if (NamesCodec(name) && DirectionOf(name) == direction) codecs.push_back(CodecText(capability.Chosen()));
    }
    details.Add(direction, Joined(codecs, ", "));
  }
}

std::string ModesText(Node requestedModes) {
  std::vector<std::string> modes;
  for (const Node description : requestedModes) {
    std::vector<std::string> elements;
    for (const Node element : description) elements.push_back(DataTypeText(element["type"]));
    modes.push_back(Joined(elements, " + "));
  }
  return Joined(modes, ", ");
}

void AddQ931(const DecodedMessage& message, DetailList& details) {
  const Node root = message.Root();
  const Node body = message.Body();
  const auto party = [&](std::string_view element, std::string_view member) {
    return root[element] ? Quoted(PartyNumberText(root[element])) : FirstOf(body, {member});
  };
  const auto reference = CallReference(root["callReferenceValue"]);
  details.Add("crv", reference ? std::to_string(*reference) : std::string());
  details.Add("from", party("callingPartyNumber", "sourceAddress"));
  details.Add("to", party("calledPartyNumber", "destinationAddress"));
  details.Add("reason", FirstOf(body, {"reason"}));
  details.Add("cause", CauseText(root["causeValue"]));
  details.Add("h245", FirstOf(body, {"h245Address"}));
  details.Add("forward", FastStartCodecs(body["fastStart"], "forwardLogicalChannelParameters"));
  details.Add("reverse", FastStartCodecs(body["fastStart"], "reverseLogicalChannelParameters"));
  details.Add("media", MediaText(body["fastStart"]));
}

void AddChannel(Node body, DetailList& details) {
  details.Add("channel",
              FirstOf(body, {"forwardLogicalChannelNumber", "logicalChannelNumber", "logicalChannelNumber1"}));
  details.Add("and", FirstOf(body, {"logicalChannelNumber2"}));
  details.Add("forward", DataTypeText(body.Find({"forwardLogicalChannelParameters", "dataType"})));
  const Node reverse = body["reverseLogicalChannelParameters"];
  details.Add("reverse", DataTypeText(reverse["dataType"]));
  details.Add("reverse channel", FirstOf(reverse, {"reverseLogicalChannelNumber"}));
  details.Add("channel", FirstOf(body["type"], {"mediaLoop", "logicalChannelLoop"}));
  const Node scope = body["scope"];
  details.Add("channel", scope["wholeMultiplex"] ? "all" : FirstOf(scope, {"logicalChannelNumber"}));
  details.Add("resource", FirstOf(scope, {"resourceID"}));
}

void AddUserInput(Node body, DetailList& details) {
  details.Add("input", FirstOf(body, {"alphanumeric", "userInputSupportIndication"}));
  details.Add("input", FirstOf(body["extendedAlphanumeric"], {"alphanumeric"}));
  details.Add("input", FirstOf(body["signal"], {"signalType"}));
  const std::string duration = FirstOf(body.Chosen(), {"duration"});
  if (!duration.empty()) details.Add("for", duration + " ms");
}

// The bit rate of a flow control, in units of 100 bit/s.
std::string RestrictionText(Node restriction) {
  const auto rate = restriction["maximumBitRate"].Number();
  return rate ? std::to_string(*rate * 100) + " bit/s" : std::string(restriction.Alternative());
}

// The nested alternatives of a CHOICE, down to one without content.
std::string ChoiceText(Node choice) {
  const std::string_view nested = choice.Chosen().Alternative();
  const bool isPlain = choice.Chosen().Count() == 1 && choice.Chosen().Chosen().Is(NodeKind::kNull);
  return isPlain ? Concat({choice.Alternative(), " ", nested}) : std::string(choice.Alternative());
}

std::string TerminalText(Node value) {
  const Node inner = value["terminalLabel"];
  const Node label = inner ? inner : value;
  const std::string mcu = FirstOf(label, {"mcuNumber"});
  return mcu.empty() ? mcu : Concat({mcu, "/", FirstOf(label, {"terminalNumber"})});
}

std::string VendorText(Node identifier) {
  const Node code = identifier["h221NonStandard"];
  if (!code) return FirstOf(identifier, {"object"});
  return Concat({FirstOf(code, {"t35CountryCode"}), "/", FirstOf(code, {"t35Extension"}), "/",
                 FirstOf(code, {"manufacturerCode"})});
}

// Octets that usually hold characters.
std::string CharactersIn(Node octets) {
  if (!octets) return {};
  std::string text;
  AppendLatin1(text, octets.Octets());
  return Quoted(text);
}

void AddH245(const DecodedMessage& message, DetailList& details) {
  const std::string_view name = message.name;
  const Node body = message.Body();
  details.Add("seq", FirstOf(body, {"sequenceNumber"}));
  AddChannel(body, details);
  if (name == "terminalCapabilitySet" && !body["capabilityTable"]) details.Add("capabilities", "none");
  AddCapabilities(body["capabilityTable"], details);
  details.Add("modes", ModesText(body["requestedModes"]));
  details.Add("terminal type", FirstOf(body, {"terminalType"}));
  details.Add("number", FirstOf(body, {"statusDeterminationNumber"}));
  details.Add("decision", FirstOf(body, {"decision"}));
  if (name == "requestModeAck") details.Add("response", FirstOf(body, {"response"}));
  details.Add("by", FirstOf(body, {"source"}));
  details.Add("reason", FirstOf(body, {"cause", "rejectReason", "reason"}));
  details.Add("type", FirstOf(body, {"type"}));
  details.Add("limit", RestrictionText(body["restriction"]));
  details.Add("rate", FirstOf(body, {"maximumBitRate"}));
  if (name == "userInput") AddUserInput(body, details);
  if (name == "endSessionCommand") details.Add("end", ChoiceText(body));
  if (name == "functionNotUnderstood") details.Add("function", body.Chosen().Alternative());
  if (name.starts_with("conference")) {
    details.Add("conference", ChoiceText(body));
    details.Add("terminal", TerminalText(body.Chosen()));
  }
  details.Add("vendor", VendorText(body["vendor"]));
  details.Add("vendor", VendorText(body.Find({"nonStandardData", "nonStandardIdentifier"})));
  details.Add("private", FirstOf(body["privateMessage"], {"messageType"}));
  details.Add("product", CharactersIn(body["productNumber"]));
  details.Add("version", CharactersIn(body["versionNumber"]));
  details.Add("mc", FirstOf(body, {"signalAddress"}));
  details.Add("message", FirstOf(body, {"messageIdentifier"}));
  details.Add("media", MediaText(body));
}

}  // namespace

std::string Details(const DecodedMessage& message) {
  DetailList details;
  switch (message.family) {
    case Family::kRas: AddRas(message, details); break;
    case Family::kQ931: AddQ931(message, details); break;
    case Family::kH245: AddH245(message, details); break;
  }
  return Printable(details.Text());
}
