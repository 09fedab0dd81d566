// Codecs and media addresses in H.245 messages.
#pragma once

#include <string>
#include <vector>

#include "decode/tree.h"
#include "text/endpoint.h"

struct MediaFields {
  std::vector<Endpoint> media;
  std::vector<Endpoint> control;
};

// Every mediaChannel and mediaControlChannel below the node, each once.
MediaFields MediaFieldsOf(Node node);

// The codec of a DataType, or the kind of data; empty if nothing is sent.
std::string DataTypeText(Node data_type);

// "receive g711Alaw64k, g729  transmit g711Alaw64k" of a terminalCapabilitySet.
std::string CapabilitiesText(Node capability_set);
