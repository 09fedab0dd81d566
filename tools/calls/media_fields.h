// Codecs and media addresses as H.245 messages name them.
#pragma once

#include <string>
#include <vector>

#include "decode/tree.h"
#include "text/endpoint.h"

struct MediaFields {
  std::vector<Endpoint> media;
  std::vector<Endpoint> control;
};

// Each mediaChannel and mediaControlChannel below the node, once.
MediaFields MediaFieldsOf(Node node);

// The codec of a DataType, or what else it stands for; empty: nothing is sent.
std::string DataTypeText(Node data_type);

// "receive g711Alaw64k, g729  transmit g711Alaw64k" of a terminalCapabilitySet.
std::string CapabilitiesText(Node capability_set);
