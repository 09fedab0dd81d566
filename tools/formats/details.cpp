#include "formats/details.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "decode/json_path.h"
#include "text/concat.h"
#include "text/hex.h"
#include "text/utf8.h"

namespace {

using Names = std::initializer_list<const char*>;

class DetailList {
 public:
  void Add(const std::string& label, const std::string& value) {
    if (value.empty()) return;
    if (!text_.empty()) text_ += "  ";
    text_ += label + " " + value;
  }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

// Some equipment fills identifiers up with NUL characters, which are left out.
std::string Quoted(const Json& value) {
  const auto& text = value.get_ref<const std::string&>();
  return Concat({"\"", text.substr(0, text.find_last_not_of('\0') + 1), "\""});
}

// The digits of an alias that is a PartyNumber.
std::string PartyDigits(const Json& alias) {
  const Json& number = Chosen(Find(alias, {"partyNumber"}));
  for (const Json* digits : {&number, &Find(number, {"publicNumberDigits"}), &Find(number, {"privateNumberDigits"})}) {
    if (digits->is_string()) return Quoted(*digits);
  }
  return {};
}

// A number, a string, yes or no, an address, or which alternative was chosen.
std::string ValueText(const Json& value) {
  if (value.is_string()) return Quoted(value);
  if (value.is_number()) return value.dump();
  if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
  if (std::string digits = PartyDigits(value); !digits.empty()) return digits;
  if (const auto endpoint = ToEndpoint(value)) return ToText(*endpoint);
  const Json& chosen = Chosen(value);
  return chosen.is_string() ? Quoted(chosen) : Alternative(value);
}

std::string Joined(const std::vector<std::string>& texts, const char* separator) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty()) joined += separator;
    joined += text;
  }
  return joined;
}

std::string ListText(const Json& list) {
  if (!list.is_array()) return {};
  std::vector<std::string> texts;
  for (const Json& element : list) texts.push_back(ValueText(element));
  return Joined(texts, ", ");
}

// The first of the members that says something.
std::string FirstOf(const Json& body, Names members) {
  for (const char* member : members) {
    const Json& value = Find(body, {member});
    std::string text = value.is_array() ? ListText(value) : ValueText(value);
    if (!text.empty()) return text;
  }
  return {};
}

void CollectMedia(const Json& json, std::vector<std::string>& media) {
  if (!json.is_structured()) return;
  const auto channel = ToEndpoint(Find(json, {"mediaChannel"}));
  const auto control = ToEndpoint(Find(json, {"mediaControlChannel"}));
  if (channel || control) {
    const std::string text =
        Concat({channel ? ToText(*channel) : "-", control ? "/" : "", control ? ToText(*control) : ""});
    if (std::find(media.begin(), media.end(), text) == media.end()) media.push_back(text);
  }
  for (const Json& member : json) CollectMedia(member, media);
}

// "media/control" of each channel in the value, each pair once.
std::string MediaText(const Json& json) {
  std::vector<std::string> media;
  CollectMedia(json, media);
  return Joined(media, ", ");
}

// The call that a message, or a part of it, is about. Bandwidth is in units of 100 bit/s.
void AddCall(const Json& call, DetailList& details) {
  details.Add("crv", FirstOf(call, {"callReferenceValue"}));
  details.Add("call", FirstOf(Find(call, {"callIdentifier"}), {"guid"}));
  details.Add("answer", FirstOf(call, {"answerCall", "answeredCall"}));
  details.Add("bandwidth", FirstOf(call, {"bandWidth", "allowedBandWidth"}));
}

void AddRas(const Json& message, DetailList& details) {
  const Json& body = Chosen(message);
  details.Add("seq", FirstOf(body, {"requestSeqNum"}));
  details.Add("reason", FirstOf(body, {"rejectReason", "nakReason", "disengageReason", "reason"}));
  details.Add("cause", FirstOf(Find(body, {"terminationCause"}), {"releaseCompleteReason", "releaseCompleteCauseIE"}));
  details.Add("result", FirstOf(body, {"result"}));
  details.Add("gk", FirstOf(body, {"gatekeeperIdentifier"}));
  details.Add("endpoint", FirstOf(body, {"endpointIdentifier"}));
  details.Add("alias", FirstOf(body, {"endpointAlias", "terminalAlias", "srcInfo", "sourceInfo"}));
  details.Add("alias", FirstOf(Find(body, {"rejectReason"}), {"duplicateAlias"}));
  details.Add("from", FirstOf(body, {"srcCallSignalAddress"}));
  details.Add("to", FirstOf(body, {"destinationInfo"}));
  details.Add("at", FirstOf(body, {"destCallSignalAddress", "callSignalAddress"}));
  details.Add("ras", FirstOf(body, {"rasAddress", "replyAddress"}));
  details.Add("ttl", FirstOf(body, {"timeToLive"}));
  details.Add("keepAlive", FirstOf(body, {"keepAlive"}));
  details.Add("delay", FirstOf(body, {"delay"}));
  details.Add("almostOut", FirstOf(body, {"almostOutOfResources"}));
  AddCall(body, details);
  AddCall(Find(body, {"callSpecific"}), details);
  for (const Json& call : Find(body, {"perCallInfo"})) AddCall(call, details);
}

// Q.850's number, without the extension bit of the octet that holds it.
std::string CauseText(const Json& octet) {
  return octet.is_number() ? std::to_string(octet.get<unsigned>() & 0x7F) : std::string();
}

// Without the flag that tells who allocated it, so that both sides of a call show the same.
std::string CallReferenceText(const Json& value) {
  return value.is_number() ? std::to_string(value.get<unsigned>() & 0x7FFF) : std::string();
}

// Q.931's octet 3a may stand before the digits: one character from U+0080 on, two octets of UTF-8.
std::string PartyNumber(const Json& element) {
  if (!element.is_string()) return {};
  const auto& text = element.get_ref<const std::string&>();
  const bool screened = !text.empty() && static_cast<unsigned char>(text[0]) >= 0x80;
  return Quoted(screened ? text.substr(2) : text);
}

void AddQ931(const Json& message, DetailList& details) {
  const Json& body = Chosen(UserInformationBody(message));
  const auto party = [&](const char* element, const char* member) {
    const std::string number = PartyNumber(Find(message, {element}));
    return number.empty() ? FirstOf(body, {member}) : number;
  };
  details.Add("crv", CallReferenceText(Find(message, {"callReferenceValue"})));
  details.Add("from", party("callingPartyNumber", "sourceAddress"));
  details.Add("to", party("calledPartyNumber", "destinationAddress"));
  details.Add("reason", FirstOf(body, {"reason"}));
  details.Add("cause", CauseText(Find(message, {"causeValue"})));
  details.Add("h245", FirstOf(body, {"h245Address"}));
  details.Add("media", MediaText(Find(body, {"fastStart"})));
}

// Which codec a capability names, a generic one with its identifier.
std::string CodecText(const Json& capability) {
  const Json& application = Find(capability, {"application"});
  const Json& choice = application.is_null() ? capability : application;
  const std::string identifier = FirstOf(Chosen(choice), {"capabilityIdentifier"});
  return Concat({Alternative(choice), identifier.empty() ? "" : " ", identifier});
}

// The codec of a DataType or ModeElementType, or what else it stands for.
std::string DataTypeText(const Json& dataType) {
  const std::string kind = Alternative(dataType);
  if (kind == "h235Media") return Concat({"encrypted ", DataTypeText(Find(dataType, {"h235Media", "mediaType"}))});
  const Names withCodec = {"audioData", "videoData", "data", "audioMode", "videoMode", "dataMode"};
  const bool hasCodec = std::find(withCodec.begin(), withCodec.end(), kind) != withCodec.end();
  return hasCodec ? CodecText(Chosen(dataType)) : kind;
}

bool NamesCodec(std::string_view capability) {
  return capability.ends_with("AudioCapability") || capability.ends_with("VideoCapability") ||
         capability.ends_with("DataApplicationCapability") || capability.ends_with("UserInputCapability");
}

std::string_view DirectionOf(std::string_view capability) {
  if (capability.starts_with("receiveAndTransmit")) return "both";
  return capability.starts_with("receive") ? "receive" : "transmit";
}

// The codecs of a capability table, by direction.
void AddCapabilities(const Json& table, DetailList& details) {
  for (const char* direction : {"receive", "transmit", "both"}) {
    std::vector<std::string> codecs;
    for (const Json& entry : table) {
      const Json& capability = Find(entry, {"capability"});
      const std::string name = Alternative(capability);
      if (NamesCodec(name) && DirectionOf(name) == direction) codecs.push_back(CodecText(Chosen(capability)));
    }
    details.Add(direction, Joined(codecs, ", "));
  }
}

std::string ModesText(const Json& requestedModes) {
  std::vector<std::string> modes;
  for (const Json& description : requestedModes) {
    std::vector<std::string> elements;
    for (const Json& element : description) elements.push_back(DataTypeText(Find(element, {"type"})));
    modes.push_back(Joined(elements, " + "));
  }
  return Joined(modes, ", ");
}

void AddChannel(const Json& body, DetailList& details) {
  details.Add("channel",
              FirstOf(body, {"forwardLogicalChannelNumber", "logicalChannelNumber", "logicalChannelNumber1"}));
  details.Add("and", FirstOf(body, {"logicalChannelNumber2"}));
  details.Add("forward", DataTypeText(Find(body, {"forwardLogicalChannelParameters", "dataType"})));
  const Json& reverse = Find(body, {"reverseLogicalChannelParameters"});
  details.Add("reverse", DataTypeText(Find(reverse, {"dataType"})));
  details.Add("reverse channel", FirstOf(reverse, {"reverseLogicalChannelNumber"}));
  details.Add("channel", FirstOf(Find(body, {"type"}), {"mediaLoop", "logicalChannelLoop"}));
  const Json& scope = Find(body, {"scope"});
  details.Add("channel", scope.contains("wholeMultiplex") ? "all" : FirstOf(scope, {"logicalChannelNumber"}));
  details.Add("resource", FirstOf(scope, {"resourceID"}));
}

void AddUserInput(const Json& body, DetailList& details) {
  details.Add("input", FirstOf(body, {"alphanumeric", "userInputSupportIndication"}));
  details.Add("input", FirstOf(Find(body, {"extendedAlphanumeric"}), {"alphanumeric"}));
  details.Add("input", FirstOf(Find(body, {"signal"}), {"signalType"}));
  const std::string duration = FirstOf(Chosen(body), {"duration"});
  if (!duration.empty()) details.Add("for", duration + " ms");
}

// The bit rate that flow control sets, in steps of 100 bit/s.
std::string RestrictionText(const Json& restriction) {
  const Json& rate = Find(restriction, {"maximumBitRate"});
  return rate.is_number() ? std::to_string(rate.get<uint64_t>() * 100) + " bit/s" : Alternative(restriction);
}

// What a message says that is a CHOICE itself, down to the alternatives that hold nothing.
std::string ChoiceText(const Json& choice) {
  const std::string nested = Alternative(Chosen(choice));
  const bool isPlain = Chosen(choice).size() == 1 && Chosen(Chosen(choice)).is_null();
  return isPlain ? Concat({Alternative(choice), " ", nested}) : Alternative(choice);
}

std::string TerminalText(const Json& value) {
  const Json& inner = Find(value, {"terminalLabel"});
  const Json& label = inner.is_null() ? value : inner;
  const std::string mcu = FirstOf(label, {"mcuNumber"});
  return mcu.empty() ? mcu : Concat({mcu, "/", FirstOf(label, {"terminalNumber"})});
}

std::string VendorText(const Json& identifier) {
  const Json& code = Find(identifier, {"h221NonStandard"});
  if (code.is_null()) return FirstOf(identifier, {"object"});
  return Concat({FirstOf(code, {"t35CountryCode"}), "/", FirstOf(code, {"t35Extension"}), "/",
                 FirstOf(code, {"manufacturerCode"})});
}

// Octets that are characters by custom.
std::string TextOfHex(const Json& hex) {
  if (!hex.is_string()) return {};
  return Quoted(FromLatin1(FromHex(hex.get_ref<const std::string&>())));
}

void AddH245(const Json& message, DetailList& details) {
  const std::string name = Alternative(Chosen(message));
  const Json& body = Chosen(Chosen(message));
  details.Add("seq", FirstOf(body, {"sequenceNumber"}));
  AddChannel(body, details);
  if (name == "terminalCapabilitySet" && !body.contains("capabilityTable")) details.Add("capabilities", "none");
  AddCapabilities(Find(body, {"capabilityTable"}), details);
  details.Add("modes", ModesText(Find(body, {"requestedModes"})));
  details.Add("terminal type", FirstOf(body, {"terminalType"}));
  details.Add("number", FirstOf(body, {"statusDeterminationNumber"}));
  details.Add("decision", FirstOf(body, {"decision"}));
  if (name == "requestModeAck") details.Add("response", FirstOf(body, {"response"}));
  details.Add("by", FirstOf(body, {"source"}));
  details.Add("reason", FirstOf(body, {"cause", "rejectReason", "reason"}));
  details.Add("type", FirstOf(body, {"type"}));
  details.Add("limit", RestrictionText(Find(body, {"restriction"})));
  details.Add("rate", FirstOf(body, {"maximumBitRate"}));
  if (name == "userInput") AddUserInput(body, details);
  if (name == "endSessionCommand") details.Add("end", ChoiceText(body));
  if (name == "functionNotUnderstood") details.Add("function", Alternative(Chosen(body)));
  if (name.starts_with("conference")) {
    details.Add("conference", ChoiceText(body));
    details.Add("terminal", TerminalText(Chosen(body)));
  }
  details.Add("vendor", VendorText(Find(body, {"vendor"})));
  details.Add("vendor", VendorText(Find(body, {"nonStandardData", "nonStandardIdentifier"})));
  details.Add("private", FirstOf(Find(body, {"privateMessage"}), {"messageType"}));
  details.Add("product", TextOfHex(Find(body, {"productNumber"})));
  details.Add("version", TextOfHex(Find(body, {"versionNumber"})));
  details.Add("mc", FirstOf(body, {"signalAddress"}));
  details.Add("message", FirstOf(body, {"messageIdentifier"}));
  details.Add("media", MediaText(body));
}

}  // namespace

std::string Details(Family family, const Decoded& decoded) {
  DetailList details;
  switch (family) {
    case Family::kRas: AddRas(decoded.message, details); break;
    case Family::kQ931: AddQ931(decoded.message, details); break;
    case Family::kH245: AddH245(decoded.message, details); break;
  }
  return Printable(details.Text());
}
