// Records as the text of JSON, by the rules of ITU-T X.697: SEQUENCE and CHOICE are objects. The walk is a
// template over every record; all that it does to the text is in functions, so that it stays small.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelvra/values.h"
#include "kelvra/walk.h"

class JsonVisitor {
 public:
  // Appends the object of one record to `text`; it is whole once Close has been called.
  explicit JsonVisitor(std::string& text) : text_(text) { Open('{'); }

  void Number(const char* name, int64_t value);
  void Boolean(const char* name, uint32_t value);
  // An ENUMERATED is a record of its own, whose whole JSON is this.
  void EnumeratedValue(uint32_t value, const char* identifier);
  void Null(const char* name);
  void UnknownExtension(uint32_t index);
  void UnknownRoot(uint32_t index);
  void ObjectIdentifier(const char* name, const kelvra::ObjectIdentifierValue& value);
  void WideCharacters(const char* name, const kelvra::BMPStringValue& value);
  void Octets(const char* name, kelvra::Slot<uint8_t> slot, uint32_t count, kelvra::OctetNotation notation) {
    EmbeddedOctets(name, slot.Get(), count, notation);
  }
  // Octets that are missing count as none.
  void EmbeddedOctets(const char* name, const uint8_t* octets, uint32_t count, kelvra::OctetNotation notation);

  template <class R>
  void Record(const char* name, R& record) {
    OpenObject(name);
    R::Walk(record, *this);
    Close();
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    R* record = slot.Get();
    if (record == nullptr) return Null(name);
    Record(name, *record);
  }

  template <class L, class Show>
  void List(const char* name, L list, Show show) {
    OpenArray(name);
    for (auto& element : list) show(element);
    Close();
  }

  void Close();

 private:
  // The name of what stands in an array.
  static constexpr const char* kElement = nullptr;

  // An object or array that is open.
  struct Level {
    size_t start;  // where its first character stands
    bool isEmpty;
    bool isReplaced;  // by a value that is all there is of the record
  };

  // Leads up to a value: the comma and the name.
  void Begin(const char* name);
  void Open(char bracket);
  void OpenObject(const char* name);
  void OpenArray(const char* name);
  void AppendHex(const uint8_t* octets, uint32_t count);
  void AppendString(std::string_view utf8);

  std::string& text_;
  std::vector<Level> levels_;  // innermost last
};
