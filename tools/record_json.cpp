#include "record_json.h"

#include "json_visitor.h"

namespace {

template <class Record>
Json Walked(Record& record) {
  Json json;
  JsonVisitor visitor(json);
  Record::Walk(record, visitor);
  return json;
}

}  // namespace

Json RecordToJson(kelvra::h225::RasMessageRecord& record) { return Walked(record); }
Json RecordToJson(kelvra::h225::Q931MessageRecord& record) { return Walked(record); }
Json RecordToJson(kelvra::h245::H245MessageRecord& record) { return Walked(record); }
