// The records of the exports as JSON.
#pragma once

#include "api/kelvra.h"
#include "json.h"

Json RecordToJson(kelvra::h225::RasMessageRecord& record);
Json RecordToJson(kelvra::h225::Q931MessageRecord& record);
Json RecordToJson(kelvra::h245::H245MessageRecord& record);
