#include "decode/record_json.h"

#include "decode/json_visitor.h"

namespace {

// Keeps the name of the first member that a walk tells, or of that member's first where kLevels is 2.
template <int kLevels>
class FirstName {
 public:
  void Null(const char* name) { Keep(name); }
  void UnknownExtension(uint32_t index) { Keep("extension-" + std::to_string(index)); }
  void UnknownRoot(uint32_t index) { Keep("unknown-" + std::to_string(index)); }
  template <class Value>
  void ObjectIdentifier(const char* name, Value&) {
    Keep(name);
  }
  template <class R>
  void Record(const char* name, R& record) {
    if constexpr (kLevels > 1) {
      FirstName<kLevels - 1> inner;
      R::Walk(record, inner);
      if (!inner.Name().empty()) name_ = inner.Name();
    }
    Keep(name);
  }

  const std::string& Name() const { return name_; }

 private:
  void Keep(std::string name) {
    if (name_.empty()) name_ = std::move(name);
  }

  std::string name_;
};

template <int kLevels, class Record>
std::string NameIn(Record& record) {
  FirstName<kLevels> first;
  Record::Walk(record, first);
  return first.Name();
}

template <class Record>
std::string Walked(Record& record) {
  std::string json;
  JsonVisitor visitor(json);
  Record::Walk(record, visitor);
  visitor.Close();
  return json;
}

}  // namespace

RecordText RecordToText(kelvra::h225::RasMessageRecord& record) { return {Walked(record), NameIn<1>(record)}; }

RecordText RecordToText(kelvra::h225::Q931MessageRecord& record) {
  const bool decoded = (record.presenceMask & kelvra::h225::kUserInformationPresent) != 0;
  auto& body = record.userInformation.h323UuPdu.h323MessageBody;
  return {Walked(record), decoded ? NameIn<1>(body) : std::string()};
}

RecordText RecordToText(kelvra::h245::H245MessageRecord& record) { return {Walked(record), NameIn<2>(record)}; }
