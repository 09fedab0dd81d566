// Records as JSON, by the rules of ITU-T X.697: SEQUENCE and CHOICE are objects.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "record/values.h"
#include "record/walk.h"

using Json = nlohmann::ordered_json;

// The value of a string, whatever its notation. A null block counts as empty.
Json OctetsToJson(const uint8_t* octets, uint32_t count, kelvra::OctetNotation notation);
Json ToJson(const kelvra::ObjectIdentifierValue& value);

template <class Record>
Json RecordToJson(Record& record);

class JsonVisitor {
 public:
  void Number(const char* name, int64_t value) { Put(name, value); }
  void Boolean(const char* name, uint32_t value) { Put(name, value != 0); }
  // An ENUMERATED is a record of its own, whose whole JSON is this.
  void EnumeratedValue(uint32_t value, const char* identifier) {
    json_ = identifier != nullptr ? Json(identifier) : Json(value);
  }
  void Null(const char* name) { Put(name, nullptr); }
  void UnknownExtension(uint32_t index) { PutUnknown("extension-", index); }
  void UnknownRoot(uint32_t index) { PutUnknown("unknown-", index); }
  void ObjectIdentifier(const char* name, kelvra::ObjectIdentifierValue& value) { Put(name, ToJson(value)); }
  void Characters16(const char* name, kelvra::BMPStringValue& value);
  void Octets(const char* name, kelvra::Slot<uint8_t> slot, uint32_t count, kelvra::OctetNotation notation) {
    Put(name, OctetsToJson(slot.Get(), count, notation));
  }
  void Embedded(const char* name, const uint8_t* octets, uint32_t count, kelvra::OctetNotation notation) {
    Put(name, OctetsToJson(octets, count, notation));
  }

  template <class R>
  void Record(const char* name, R& record) {
    Put(name, RecordToJson(record));
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    R* record = slot.Get();
    Put(name, record != nullptr ? RecordToJson(*record) : Json());
  }

  template <class L>
  void List(const char* name, L list) {
    PutList(name, list, [](auto& element) { return RecordToJson(element); });
  }
  template <class L>
  void OctetStrings(const char* name, L list, kelvra::OctetNotation notation) {
    PutList(name, list, [notation](auto& element) { return OctetsToJson(element.data, element.length, notation); });
  }
  template <class L>
  void FixedOctetStrings(const char* name, L list, uint32_t size) {
    PutList(name, list,
            [size](auto& element) { return OctetsToJson(element.data, size, kelvra::OctetNotation::kOctets); });
  }
  template <class L>
  void ObjectIdentifiers(const char* name, L list) {
    PutList(name, list, [](auto& element) { return ToJson(element); });
  }
  template <class L>
  void Numbers(const char* name, L list) {
    PutList(name, list, [](auto& element) { return Json(element); });
  }

  Json Take() { return std::move(json_); }

 private:
  void Put(const char* name, Json value) {
    const bool isWhole = *name == '\0';
    (isWhole ? json_ : json_[name]) = std::move(value);
  }
  void PutUnknown(const char* prefix, uint32_t index) { Put((prefix + std::to_string(index)).c_str(), nullptr); }

  template <class L, class Convert>
  void PutList(const char* name, L list, Convert convert) {
    Json array = Json::array();
    for (auto& element : list) array.push_back(convert(element));
    Put(name, std::move(array));
  }

  Json json_ = Json::object();
};

template <class Record>
Json RecordToJson(Record& record) {
  JsonVisitor visitor;
  Record::Walk(record, visitor);
  return visitor.Take();
}
