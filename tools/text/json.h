// The JSON type of the viewer, which keeps the order of members.
#pragma once

#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;
