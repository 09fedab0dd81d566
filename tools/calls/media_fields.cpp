#include "calls/media_fields.h"

#include <string_view>

#include "calls/call.h"
#include "decode/values.h"
#include "text/concat.h"

namespace {

void Collect(Node node, MediaFields& fields) {
  for (const Node member : node) {
    if (member.Name() == "mediaChannel" || member.Name() == "mediaControlChannel") {
      const auto endpoint = ToEndpoint(member);
      if (endpoint) AddOnce(member.Name() == "mediaChannel" ? fields.media : fields.control, *endpoint);
    } else {
      Collect(member, fields);
    }
  }
}

std::string CodecText(Node capability) {
  const Codec codec = CodecOf(capability);
  const Node identifier = codec.identifier.Chosen();
  return Concat({codec.name, identifier ? " " : "", identifier.Text()});
}

std::string_view DirectionOf(std::string_view capability) {
  if (capability.starts_with("receiveAndTransmit")) return "receive and transmit";
  return capability.starts_with("receive") ? "receive" : "transmit";
}

bool NamesMedia(std::string_view capability) {
  return capability.ends_with("AudioCapability") || capability.ends_with("VideoCapability") ||
         capability.ends_with("DataApplicationCapability");
}

std::string CodecsOf(Node table, std::string_view direction) {
  std::string codecs;
  for (const Node entry : table) {
    const Node capability = entry["capability"];
    if (!NamesMedia(capability.Alternative()) || DirectionOf(capability.Alternative()) != direction) continue;
    codecs += Concat({codecs.empty() ? "" : ", ", CodecText(capability.Chosen())});
  }
  return codecs;
}

}  // namespace

MediaFields MediaFieldsOf(Node node) {
  MediaFields fields;
  Collect(node, fields);
  return fields;
}

std::string DataTypeText(Node data_type) {
  const std::string_view kind = data_type.Alternative();
  if (kind == "nullData") return {};
  if (kind == "h235Media") return Concat({"encrypted ", DataTypeText(data_type.Chosen()["mediaType"])});
  if (kind == "audioData" || kind == "videoData" || kind == "data") return CodecText(data_type.Chosen());
  return std::string(kind);
}

std::string CapabilitiesText(Node capability_set) {
  std::string text;
  for (const char* direction : {"receive", "transmit", "receive and transmit"}) {
    const std::string codecs = CodecsOf(capability_set["capabilityTable"], direction);
    if (!codecs.empty()) text += Concat({text.empty() ? "" : "; ", direction, " ", codecs});
  }
  return text.empty() ? "none" : text;
}
