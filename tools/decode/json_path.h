// Finding the way in decoded messages.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "text/endpoint.h"
#include "text/json.h"

// The member that the names lead to; a null value where there is none.
const Json& Find(const Json& json, std::initializer_list<const char*> path);

// Of a CHOICE: which alternative (empty: none) and its value.
std::string Alternative(const Json& choice);
const Json& Chosen(const Json& choice);

// The h323-message-body of a call-signalling message.
const Json& UserInformationBody(const Json& message);

// The endpoint in a TransportAddress of H.225.0 or H.245, or in one of its alternatives.
std::optional<Endpoint> ToEndpoint(const Json& address);
