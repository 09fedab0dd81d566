// Prints each record's description: one line of JSON per record. scripts/records.py compiles it natively with the
// record list, RECORD_LIST, and runs it. Offsets are those of this compiler's layout.
#include <stdint.h>
#include <stdio.h>

#include <memory>

#include "kelvra/h225/call/q931_message.h"
#include "kelvra/h225/ras/ras_message.h"
#include "kelvra/h245/messages/h245_message.h"

namespace kelvra {
namespace {

// --- The notation of the strings that a kind stands for ---

constexpr const char* kNotations[] = {"octets", "characters", "digits", "bits", "bits"};

template <class Kind>
const char* NotationOf(Kind) {
  return nullptr;
}
template <template <asn1::StringUnits, OctetNotation> class StringKind, asn1::StringUnits kUnits,
          OctetNotation kNotation>
const char* NotationOf(StringKind<kUnits, kNotation>) {
  return kNotations[static_cast<int>(kNotation)];
}
inline const char* NotationOf(asn1::ClearedOctetStringKind) { return "octets"; }
inline const char* NotationOf(asn1::UncountedOctetStringKind) { return "octets"; }
inline const char* NotationOf(asn1::SplitOctetStringKind) { return "octets"; }
inline const char* NotationOf(asn1::FixedSplitOctetStringKind) { return "octets"; }
inline const char* NotationOf(asn1::CheckedIA5StringKind) { return "characters"; }
inline const char* NotationOf(asn1::SignalTypeKind) { return "characters"; }

// The octets of a string whose length word stays zero; 0 for any other.
template <class Kind>
uint32_t UncountedOctetsOf(Kind) {
  return 0;
}
inline uint32_t UncountedOctetsOf(asn1::UncountedOctetStringKind kind) { return kind.size; }

// --- What a follower is shown, as JSON ---

class Printer {
 public:
  explicit Printer(const void* record) : record_(static_cast<const char*>(record)) {}

  void Open(const char* name) {
    printf("%s{\"name\":\"%s\"", separator_, name);
    separator_ = ",";
  }
  static void Close() { printf("}"); }
  void At(const char* role, const void* address) const {
    printf(",\"%s\":%d", role, static_cast<int>(static_cast<const char*>(address) - record_));
  }

  template <class Place, class Kind>
  void Value(const char* name, Place&& place, Kind kind) {
    Open(name);
    Detail(place, kind);
  }
  template <class Place, class Kind>
  void Value(const char*, Place&& place, asn1::NamedKind<Kind> named) {
    Value(named.name, place, named.kind);
  }

 private:
  template <class Place, class Kind>
  void Detail(Place&& place, Kind kind) {
    PlaceOf(place);
    if (const char* notation = NotationOf(kind)) printf(",\"notation\":\"%s\"", notation);
    if (const uint32_t octets = UncountedOctetsOf(kind)) printf(",\"uncounted\":%u", octets);
  }
  template <class Place, class Kind>
  void Detail(Place&& place, asn1::AliasKind<Kind> alias) {
    Detail(place, alias.kind);
  }
  template <class Place, class Kind>
  void Detail(Place&& place, asn1::GatedKind<Kind> gated) {
    Detail(place, gated.kind);
  }
  template <class Place, class Kind>
  void Detail(Place&& place, asn1::EvenIfMissingKind<Kind> element) {
    Detail(place, element.kind);
  }
  template <class Place, class Kind>
  void Detail(Place&& place, asn1::SequenceOfKind<Kind> list) {
    Detail(place, list.element);
  }
  template <class Place, class Kind>
  void Detail(Place&& place, asn1::SizedSequenceOfKind<Kind> list) {
    Detail(place, list.element);
  }
  template <class Place>
  void Detail(Place&& place, asn1::SplitOctetStringKind kind) {
    DetailSplit(place, kind);
  }
  template <class Place>
  void Detail(Place&& place, asn1::FixedSplitOctetStringKind kind) {
    DetailSplit(place, kind);
  }
  template <class Place, class Kind>
  void DetailSplit(Place&& place, Kind kind) {
    PlaceOf(place);
    At("count", kind.length.Address());
    printf(",\"notation\":\"%s\"", NotationOf(kind));
  }
  template <class Place>
  void Detail(Place&& place, asn1::ExtendedInlineTypeKind kind) {
    PlaceOf(place);
    At("extended", kind.flag.Address());
  }

  template <class T>
  void PlaceOf(asn1::Scalar<T> place) const {
    At("at", place.Address());
  }
  template <class T>
  void PlaceOf(Slot<T> slot) const {
    At("at", slot.Address());
  }
  template <class Element, class Count>
  void PlaceOf(ListView<Element, Count> list) const {
    At("at", list.Elements().Address());
    At("count", list.CountAddress());
  }
  template <class Record>
  void PlaceOf(Record& record) const {
    At("at", &record);
  }

  const char* record_;
  const char* separator_ = "";
};

class SequencePrinter {
 public:
  explicit SequencePrinter(const void* record) : print_(record) {}

  template <class Place, class Kind>
  bool Member(const char* name, Place&& place, Kind kind) {
    print_.Value(name, place, kind);
    Printer::Close();
    return true;
  }
  template <class Place, class Kind>
  bool Optional(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    print_.Value(name, place, kind);
    print_.At("flag", flag.Address());
    Printer::Close();
    return true;
  }
  template <class Place, class Kind>
  bool Addition(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    return Optional(flag, name, place, kind);
  }
  static void Extension(asn1::Flag) {}
  static bool Versions(int32_t, int32_t) { return true; }

 private:
  Printer print_;
};

class ChoicePrinter {
 public:
  explicit ChoicePrinter(const void* record) : print_(record) {}

  static void Tag(asn1::Scalar<uint8_t>) {}
  template <class Place, class Kind>
  bool Alternative(const char* name, Place&& place, Kind kind) {
    print_.Value(name, place, kind);
    return Close();
  }
  bool NullAlternative(const char* name) {
    print_.Open(name);
    return Close();
  }
  bool PassedOver(const char* name) { return NullAlternative(name); }
  void Extension(asn1::Flag) {
    isExtension_ = true;
    next_ = 0;
  }

 private:
  bool Close() {
    printf(",\"tag\":%d,\"extension\":%s", next_++, isExtension_ ? "true" : "false");
    Printer::Close();
    return true;
  }

  Printer print_;
  int next_ = 0;
  bool isExtension_ = false;
};

struct IdentifierVisitor : EmptyVisitor {
  const char* identifier = nullptr;
  void EnumeratedValue(uint32_t, const char* name) { identifier = name; }
};

// --- The forms of a record ---

template <class Record>
void PrintEnumerated(Record& record) {
  for (record.value = 0;; ++record.value) {
    IdentifierVisitor visitor;
    Record::Walk(record, visitor);
    if (visitor.identifier == nullptr) return;
    printf("%s{\"name\":\"%s\",\"tag\":%u}", record.value == 0 ? "" : ",", visitor.identifier, +record.value);
  }
}

template <class Names>
void PrintNulls() {
  ChoicePrinter print(nullptr);
  uint32_t index = 0;
  for (const char* name : Names::kAlternatives) {
    if (index++ == Names::kRoots) print.Extension(asn1::Flag(nullptr));
    print.NullAlternative(name);
  }
}

template <class Record>
concept Described = requires {
  Record::kForm;
};
template <class Record>
concept ChoiceOfNulls = requires {
  typename Record::AlternativeNames;
};

template <class Record>
void Print(const char* name) {
  const auto record = std::make_unique<Record>();
  const auto open = [name](const char* form) {
    printf("{\"record\":\"%s\",\"form\":\"%s\",\"components\":[", name, form);
  };
  if constexpr (ChoiceOfNulls<Record>) {
    open("nulls");
    PrintNulls<typename Record::AlternativeNames>();
  } else if constexpr (!Described<Record>) {
    open("plain");
  } else if constexpr (Record::kForm == asn1::TypeForm::kSequence) {
    open("sequence");
    SequencePrinter print(record.get());
    static_cast<void>(Record::Describe(*record, print));
  } else if constexpr (Record::kForm == asn1::TypeForm::kChoice) {
    open("choice");
    ChoicePrinter print(record.get());
    static_cast<void>(Record::Describe(*record, print));
  } else {
    open("enumerated");
    PrintEnumerated(*record);
  }
  printf("]}\n");
}

}  // namespace
}  // namespace kelvra

int main() {
  using namespace kelvra;
#define LIST_RECORD(record) Print<record>(#record);
#include RECORD_LIST
#undef LIST_RECORD
  return 0;
}
