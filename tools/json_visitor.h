// Records as JSON, by the rules of ITU-T X.697: SEQUENCE and CHOICE are objects.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "per/values.h"
#include "per/walk.h"

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

  template <class R>
  void List(const char* name, kelvra::Slot<R> slot, uint32_t count) {
    PutList(name, slot, count, [](R& element) { return RecordToJson(element); });
  }
  void OctetStrings(const char* name, kelvra::Slot<kelvra::OctetStringValue> slot, uint32_t count,
                    kelvra::OctetNotation notation) {
    PutList(name, slot, count, [notation](const kelvra::OctetStringValue& element) {
      return OctetsToJson(element.data, element.length, notation);
    });
  }
  void FixedOctetStrings(const char* name, kelvra::Slot<kelvra::OctetStringValue> slot, uint32_t count, uint32_t size) {
    PutList(name, slot, count, [size](const kelvra::OctetStringValue& element) {
      return OctetsToJson(element.data, size, kelvra::OctetNotation::kOctets);
    });
  }
  void ObjectIdentifiers(const char* name, kelvra::Slot<kelvra::ObjectIdentifierValue> slot, uint32_t count) {
    PutList(name, slot, count, [](const kelvra::ObjectIdentifierValue& element) { return ToJson(element); });
  }
  template <class N>
  void Numbers(const char* name, kelvra::Slot<N> slot, uint32_t count) {
    PutList(name, slot, count, [](const N& element) { return Json(element); });
  }

  Json Take() { return std::move(json_); }

 private:
  void Put(const char* name, Json value) { json_[name] = std::move(value); }
  void PutUnknown(const char* prefix, uint32_t index) { Put((prefix + std::to_string(index)).c_str(), nullptr); }

  template <class Element, class Convert>
  void PutList(const char* name, kelvra::Slot<Element> slot, uint32_t count, Convert convert) {
    Json list = Json::array();
    Element* elements = slot.Get();
    for (uint32_t i = 0; elements != nullptr && i < count; ++i) {
      list.push_back(convert(elements[i]));
    }
    Put(name, std::move(list));
  }

  Json json_ = Json::object();
};

template <class Record>
Json RecordToJson(Record& record) {
  JsonVisitor visitor;
  Record::Walk(record, visitor);
  return visitor.Take();
}
