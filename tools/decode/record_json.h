// The records of the exports as JSON: its text, and the name of the message in it.
#pragma once

#include <string>

#include "kelvra/kelvra.h"
#include "text/json.h"

struct RecordText {
  std::string json;
  std::string name;  // of the alternative, empty when none was decoded
};

RecordText RecordToText(kelvra::h225::RasMessageRecord& record);
RecordText RecordToText(kelvra::h225::Q931MessageRecord& record);
RecordText RecordToText(kelvra::h245::H245MessageRecord& record);

template <class Record>
Json RecordToJson(Record& record) {
  return Json::parse(RecordToText(record).json);
}
