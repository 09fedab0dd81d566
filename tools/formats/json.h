// What was read of a message as JSON, by the rules of ITU-T X.697: SEQUENCE and CHOICE are objects.
#pragma once

#include <string>

#include "decode/tree.h"

// Appends the value of a node.
void AppendJson(std::string& json, Node node);
