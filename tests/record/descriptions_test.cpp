// Compares each description with its record. The members that the description of a SEQUENCE reports are contiguous and
// fill the record; a CHOICE reports each member of its union, and fills its record too.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "kelvra/kelvra.h"
#include "per/decoder.h"

#include "kelvra/begin_descriptions.h"

namespace kelvra {
namespace {

using NameList = std::vector<std::string>;

template <class T>
concept Described = requires {
  T::kForm;
};
template <class T>
concept ChoiceOfNulls = requires {
  typename T::AlternativeNames;
};
template <class T>
concept ListRecord = requires(T& m) {
  m.count, m.elements;
};
template <class T>
constexpr bool kIsString = std::is_same_v<T, OctetStringValue> || std::is_same_v<T, BMPStringValue> ||
                           std::is_same_v<T, ObjectIdentifierValue>;

// The faults in the description of one record.
class Faults {
 public:
  template <class... Text>
  void Add(const Text&... text) {
    found_.push_back((std::string() + ... + text));
  }
  void AddIfToldTwice(const std::string& name) {
    if (!told_.insert(name).second) Add(name, " is told twice");
  }
  // Checks that a value up to `high` fits in an unsigned member, and one from `low` on in a signed one.
  template <class T>
  void AddIfWider(const std::string& name, int64_t low, int64_t high) {
    using Limits = std::numeric_limits<T>;
    if (low < int64_t{Limits::min()} || high > int64_t{Limits::max()}) Add(name, " has no room for its range");
  }
  const NameList& Found() const { return found_; }

 private:
  NameList found_;
  std::set<std::string> told_;
};

// The octets of a record that a description reports.
class Tiles {
 public:
  template <class Record>
  Tiles(const Record& record, Faults& faults)
      : begin_(reinterpret_cast<const char*>(&record)), octets_(sizeof record), faults_(faults) {}

  // `part` names the part of the member: "the flag of ", or "" for the member itself.
  void Lay(const char* part, const char* name, const void* address, size_t octets) {
    Lay(std::string(part) + name, address, octets);
  }
  void Lay(const std::string& name, const void* address, size_t octets) {
    const ptrdiff_t at = static_cast<const char*>(address) - begin_;
    if (!tiles_.empty() && at < tiles_.back().at) faults_.Add(name, " stands before what is told before it");
    tiles_.push_back({name, at, at + static_cast<ptrdiff_t>(octets)});
  }
  // Checks that the tiles fill the record.
  void AddUncovered() {
    std::stable_sort(tiles_.begin(), tiles_.end(), [](const Tile& a, const Tile& b) { return a.at < b.at; });
    ptrdiff_t end = 0;
    for (const Tile& tile : tiles_) {
      if (tile.at < end) faults_.Add(tile.name, " overlaps what stands before it");
      if (tile.at > end) faults_.Add(std::to_string(tile.at - end), " octets before ", tile.name, " are not told");
      end = tile.end;
    }
    const ptrdiff_t left = static_cast<ptrdiff_t>(octets_) - end;
    if (left != 0) faults_.Add(std::to_string(left), " octets at the end are not told");
  }

 private:
  struct Tile {
    std::string name;
    ptrdiff_t at;
    ptrdiff_t end;
  };
  const char* begin_;
  size_t octets_;
  std::vector<Tile> tiles_;
  Faults& faults_;
};

// Follows the description of a SEQUENCE.
class SequenceCheck {
 public:
  template <class Record>
  SequenceCheck(const Record& record, Faults& faults) : tiles_(record, faults), faults_(faults) {}

  template <class Place, class Kind>
  bool Member(const char* name, Place&& place, Kind kind) {
    if (isExtended_) faults_.Add(name, " stands after the extension marker");
    Component(name, place, kind);
    return true;
  }
  template <class Place, class Kind>
  bool Optional(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    LayFlag("the flag of ", name, flag);
    return Member(name, place, kind);
  }
  template <class Place, class Kind>
  bool Addition(asn1::Flag flag, const char* name, Place&& place, Kind kind) {
    if (!isExtended_) faults_.Add(name, " stands before the extension marker");
    LayFlag("the flag of ", name, flag);
    Component(name, place, kind);
    return true;
  }
  void Extension(asn1::Flag flag) {
    if (isExtended_) faults_.Add("there is a second extension marker");
    isExtended_ = true;
    LayFlag("", "the extension bit", flag);
  }
  bool Versions(int32_t first, int32_t last) {
    if (first > last) faults_.Add("there is no version from ", std::to_string(first), " to ", std::to_string(last));
    return true;
  }
  void AddUncovered() { tiles_.AddUncovered(); }

 private:
  void LayFlag(const char* part, const char* name, asn1::Flag flag) { LayPlace(part, name, flag); }

  template <class Place, class Kind>
  void Component(const char* name, Place&& place, asn1::NamedKind<Kind> named) {
    static_cast<void>(name);
    Component(named.name, place, named.kind);
  }
  template <class Place, class Kind>
  void Component(const char* name, Place&& place, Kind kind) {
    faults_.AddIfToldTwice(name);
    LayValue(name, place, kind);
  }

  template <class Place, class Kind>
  void LayValue(const char* name, Place&& place, Kind) {
    LayPlace("", name, place);
  }
  template <class Place, class Kind>
  void LayValue(const char* name, Place&& place, asn1::AliasKind<Kind> alias) {
    LayValue(name, place, alias.kind);
  }
  template <class Place, class Kind>
  void LayValue(const char* name, Place&& place, asn1::GatedKind<Kind> gated) {
    LayValue(name, place, gated.kind);
  }
  template <class T>
  void LayValue(const char* name, asn1::Scalar<T> place, asn1::IntegerKind kind) {
    faults_.AddIfWider<T>(name, kind.low, kind.high);
    LayPlace("", name, place);
  }
  void LayValue(const char* name, Slot<uint8_t> slot, asn1::SplitOctetStringKind kind) {
    LayPlace("the length of ", name, kind.length);
    LayPlace("", name, slot);
  }
  void LayValue(const char* name, Slot<uint8_t> slot, asn1::FixedSplitOctetStringKind kind) {
    LayPlace("the length of ", name, kind.length);
    LayPlace("", name, slot);
  }
  template <class Record>
  void LayValue(const char* name, Record& record, asn1::ExtendedInlineTypeKind kind) {
    LayPlace("", name, record);
    LayFlag("the extension bit of ", name, kind.flag);
  }
  template <class Element, class Count, class Kind>
  void LayValue(const char* name, ListView<Element, Count> list, asn1::SizedSequenceOfKind<Kind> kind) {
    faults_.AddIfWider<Count>(name, kind.low, kind.high);
    LayPlace("", name, list);
  }

  template <class T>
  void LayPlace(const char* part, const char* name, asn1::Scalar<T> place) {
    tiles_.Lay(part, name, place.Address(), sizeof(T));
  }
  template <class T>
  void LayPlace(const char* part, const char* name, Slot<T> slot) {
    tiles_.Lay(part, name, slot.Address(), sizeof(T*));
  }
  template <class Element, class Count>
  void LayPlace(const char* part, const char* name, ListView<Element, Count> list) {
    tiles_.Lay("the count of ", name, list.CountAddress(), sizeof(Count));
    LayPlace(part, name, list.Elements());
  }
  template <class Record>
  void LayPlace(const char* part, const char* name, Record& record) {
    tiles_.Lay(part, name, &record, sizeof record);
  }

  Tiles tiles_;
  Faults& faults_;
  bool isExtended_ = false;
};

// Follows the description of a CHOICE, and records the positions of its members.
class ChoiceCheck {
 public:
  explicit ChoiceCheck(Faults& faults) : faults_(faults) {}

  void Tag(asn1::Scalar<uint8_t> place) { tag_ = place.Address(); }
  template <class Place, class Kind>
  bool Alternative(const char* name, Place&& place, Kind) {
    members_.push_back(name);
    Keep(place);
    return NullAlternative(name);
  }
  template <class Place, class Kind>
  bool Alternative(const char* name, Place&& place, asn1::NamedKind<Kind> named) {
    members_.push_back(name);
    Keep(place);
    return NullAlternative(named.name);
  }
  bool NullAlternative(const char* name) {
    faults_.AddIfToldTwice(name);
    if (extension_ == nullptr) ++roots_;
    return true;
  }
  bool PassedOver(const char* name) { return NullAlternative(name); }
  void Extension(asn1::Flag flag) {
    if (extension_ != nullptr) faults_.Add("there is a second extension marker");
    extension_ = flag.Address();
  }

  // `alternatives` are the members of the record's union, if it has one. Some members are not alternatives.
  template <class Record>
  void AddUncovered(const Record& record, NameList alternatives) {
    if (roots_ == 0 || roots_ > 256) faults_.Add(std::to_string(roots_), " root alternatives");
    std::erase(alternatives, "empty");
    std::erase(alternatives, "reserved");
    if (alternatives.empty() ? members_.size() > 1 : members_ != alternatives) {
      faults_.Add("the alternatives are not those of the union, in its order");
    }
    Tiles tiles(record, faults_);
    const bool extensionIsFirst = extension_ != nullptr && extension_ < tag_;
    if (extensionIsFirst) tiles.Lay("the extension bit", extension_, sizeof(uint32_t));
    tiles.Lay("the tag", tag_, sizeof(uint8_t));
    if (union_ != nullptr) tiles.Lay("the union", union_, unionOctets_);
    if (extension_ != nullptr && !extensionIsFirst) tiles.Lay("the extension bit", extension_, sizeof(uint32_t));
    tiles.AddUncovered();
  }

 private:
  template <class T>
  void Keep(asn1::Scalar<T> place) {
    Keep(place.Address(), sizeof(T));
  }
  template <class T>
  void Keep(Slot<T> slot) {
    Keep(slot.Address(), sizeof(T*));
  }
  template <class Record>
  void Keep(Record& record) {
    Keep(&record, sizeof record);
  }
  void Keep(const void* address, size_t octets) {
    if (union_ != nullptr && union_ != address) faults_.Add(members_.back(), " is no member of the union");
    union_ = address;
    unionOctets_ = std::max(unionOctets_, octets);
  }

  Faults& faults_;
  const void* tag_ = nullptr;
  const void* extension_ = nullptr;
  const void* union_ = nullptr;
  size_t unionOctets_ = 0;
  uint32_t roots_ = 0;
  NameList members_;
};

// The identifiers of an ENUMERATED.
struct IdentifierCheck : EmptyVisitor {
  const char* identifier = nullptr;
  void EnumeratedValue(uint32_t, const char* name) { identifier = name; }
};

// A decoder reads all flags of a SEQUENCE together, and keeps which components are BOOLEANs in one word.
void AddIfTooManyFlags(const FlagCount& count, Faults& faults) {
  if (count.extensionBits + count.optionals > 32) faults.Add("there are more than 32 flags before the root");
  if (count.additions > 32) faults.Add("there are more than 32 known additions");
  if (count.components > 63) faults.Add("there are more than 63 components");
}

template <class Record>
void CheckSequence(Record& record, Faults& faults) {
  FlagCount count;
  static_cast<void>(Record::Describe(record, count));
  AddIfTooManyFlags(count, faults);
  SequenceCheck check(record, faults);
  static_cast<void>(Record::Describe(record, check));
  check.AddUncovered();
}

template <class Record>
void CheckChoice(Record& record, const NameList& alternatives, Faults& faults) {
  ChoiceCheck check(faults);
  static_cast<void>(Record::Describe(record, check));
  check.AddUncovered(record, alternatives);
}

template <class Record>
void CheckEnumerated(Record& record, Faults& faults) {
  Tiles tiles(record, faults);
  tiles.Lay("the value", &record.value, sizeof record.value);
  tiles.Lay("the extension bit", &record.isExtended, sizeof record.isExtended);
  tiles.AddUncovered();
  uint32_t count = 0;
  for (;; ++count) {
    record.value = count;
    IdentifierCheck check;
    Record::Walk(record, check);
    if (check.identifier == nullptr) break;
    faults.AddIfToldTwice(check.identifier);
  }
  if (count == 0) faults.Add("there are no identifiers");
}

template <class Record>
void CheckChoiceOfNulls(Faults& faults) {
  using List = typename Record::AlternativeNames;
  for (const char* name : List::kAlternatives) faults.AddIfToldTwice(name);
  if (List::kRoots == 0 || List::kRoots > std::size(List::kAlternatives)) faults.Add("that many roots are not told");
}

template <class Record>
void CheckListRecord(Record& record, Faults& faults) {
  Tiles tiles(record, faults);
  tiles.Lay("the count", &record.count, sizeof record.count);
  tiles.Lay("the elements", &record.elements, sizeof record.elements);
  tiles.AddUncovered();
}

// The faults of a record whose union has these members.
template <class Record>
NameList FaultsOf(const NameList& alternatives) {
  Record record = {};
  Faults faults;
  if constexpr (ChoiceOfNulls<Record>) {
    CheckChoiceOfNulls<Record>(faults);
  } else if constexpr (!Described<Record>) {
    if constexpr (ListRecord<Record>) {
      CheckListRecord(record, faults);
    } else if constexpr (!kIsString<Record>) {
      faults.Add("there is no description");
    }
  } else if constexpr (Record::kForm == asn1::TypeForm::kSequence) {
    CheckSequence(record, faults);
  } else if constexpr (Record::kForm == asn1::TypeForm::kChoice) {
    CheckChoice(record, alternatives, faults);
  } else {
    CheckEnumerated(record, faults);
  }
  return faults.Found();
}

using FaultsByRecord = std::map<std::string, NameList>;

// Members that descriptions omit or report out of place.
FaultsByRecord KnownFaults() {
  // The space of the private form, and the form in use, which is always the other one.
  const NameList privateForm = {"1 octets before nonStandardData are not told",
                                "50 octets before the extension bit are not told"};
  const std::string misplaced = "the extension bit stands before what is told before it";
  FaultsByRecord known = {
      {"h225::AdmissionConfirm", privateForm},
      {"h225::AdmissionReject", privateForm},
      {"h225::AdmissionRequest", {privateForm[0], "50 octets before the flag of callServices are not told"}},
      {"h225::DisengageRequest", privateForm},
      // Information elements, which have no ASN.1.
      {"h225::Q931MessageRecord", {"there is no description"}},
      // The extension bit comes first, but the marker is the last line.
      {"h225::RegistrationRejectReason::InvalidTerminalAliases", {misplaced}},
      // reserved
      {"h235::ClearToken", {"87 octets at the end are not told"}},
      // messageClass repeats that of the enclosing message; the private message is reported in place of its data.
      {"h245::H245NonStandardMessageRecord", {misplaced, "1 octets before privateMessage are not told"}},
      // The octets come before their length.
      {"h245::NonStandardParameter", {"data stands before what is told before it"}},
  };
  // With small pointers, the space reserved in its union exceeds the alternatives.
  if (sizeof(void*) == 4) known["h225::CryptoH323Token"] = {"36 octets before the extension bit are not told"};
  return known;
}

// A record and the members of its union.
struct ListedRecord {
  const char* name;
  NameList (*faultsOf)(const NameList& alternatives);
  std::initializer_list<const char*> alternatives;
};
const ListedRecord kRecords[] = {
#define LIST_RECORD(record, ...) {#record, FaultsOf<record>, {__VA_ARGS__}},
#include "record_list.inc"
#undef LIST_RECORD
};

TEST(DescriptionsTest, ReportEveryMemberOfEachRecordInItsPlace) {
  FaultsByRecord known = KnownFaults();
  for (const ListedRecord& record : kRecords) {
    const NameList faults = record.faultsOf({record.alternatives.begin(), record.alternatives.end()});
    EXPECT_EQ(faults, known[record.name]) << record.name;
    known.erase(record.name);
  }
  EXPECT_EQ(known, FaultsByRecord()) << "these are no records";
  EXPECT_GT(std::size(kRecords), 500U);
}

// --- Descriptions with faults ---

#pragma pack(push, 1)

struct TileMembers {
  uint32_t hasFirst;
  uint8_t first;
  uint8_t listCount;
  uint16_t* list;
  uint32_t isExtended;
  uint32_t hasSecond;
  uint8_t second;
};

struct WrongFlag : TileMembers {
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasFirst, first, Integer(0, 255));
    KELVRA_MEMBER_LIST(list, SequenceOf(1, 255, Integer(0, 65535)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasFirst, second, Integer(0, 255));
  KELVRA_END
};

struct SameName : TileMembers {
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasFirst, first, Integer(0, 255));
    KELVRA_MEMBER_LIST(list, SequenceOf(1, 255, Integer(0, 65535)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSecond, second, Named("first", Integer(0, 255)));
  KELVRA_END
};

struct NoRoom : TileMembers {
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasFirst, first, Integer(1, 256));
    KELVRA_MEMBER_LIST(list, SequenceOf(1, 256, Integer(0, 65535)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSecond, second, Integer(-1, 127));
  KELVRA_END
};

struct AdditionBeforeMarker : TileMembers {
  KELVRA_SEQUENCE
    KELVRA_ADDITION(hasFirst, first, Integer(0, 255));
    KELVRA_MEMBER_LIST(list, SequenceOf(1, 255, Integer(0, 65535)));
    KELVRA_EXTENSION(isExtended);
    KELVRA_OPTIONAL(hasSecond, second, Integer(0, 255));
  KELVRA_END
};

TEST(DescriptionsTest, FaultsOfASequenceAreSeen) {
  EXPECT_EQ(FaultsOf<WrongFlag>({}),
            NameList({"the flag of second stands before what is told before it",
                      "the flag of second overlaps what stands before it", "4 octets before second are not told"}));
  EXPECT_EQ(FaultsOf<SameName>({}), NameList({"first is told twice"}));
  EXPECT_EQ(FaultsOf<NoRoom>({}), NameList({"first has no room for its range", "list has no room for its range",
                                            "second has no room for its range"}));
  EXPECT_EQ(FaultsOf<AdditionBeforeMarker>({}),
            NameList({"first stands before the extension marker", "second stands after the extension marker"}));
}

TEST(DescriptionsTest, FindsMoreFlagsThanADecoderReadsAtOnce) {
  const auto faultsOf = [](uint32_t optionals, uint32_t additions, uint32_t components) {
    FlagCount count;
    count.extensionBits = 1;
    count.optionals = optionals;
    count.additions = additions;
    count.components = components;
    Faults faults;
    AddIfTooManyFlags(count, faults);
    return faults.Found().size();
  };
  EXPECT_EQ(faultsOf(31, 32, 63), 0U);
  EXPECT_EQ(faultsOf(32, 32, 63), 1U);
  EXPECT_EQ(faultsOf(31, 33, 63), 1U);
  EXPECT_EQ(faultsOf(31, 32, 64), 1U);
}

struct UnionMembers {
  uint8_t choiceTag;
  union {
    uint32_t large;
    uint16_t small;
  };
  uint8_t other;
  uint32_t isExtension;
};

struct ForgottenAlternative : UnionMembers {
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(large, Integer(0, kUnsigned32Maximum));
    KELVRA_NULL(none);
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct AlternativeTwice : UnionMembers {
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(large, Integer(0, kUnsigned32Maximum));
    KELVRA_NULL(none);
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(small, Integer(0, 65535));
    KELVRA_NULL(none);
  KELVRA_END
};

struct AlternativeOutsideUnion : UnionMembers {
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(large, Integer(0, kUnsigned32Maximum));
    KELVRA_ALTERNATIVE(other, Integer(0, 255));
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(small, Integer(0, 65535));
  KELVRA_END
};

struct NoRoots : UnionMembers {
  KELVRA_CHOICE(choiceTag)
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(large, Integer(0, kUnsigned32Maximum));
    KELVRA_ALTERNATIVE(small, Integer(0, 65535));
  KELVRA_END
};

#pragma pack(pop)

TEST(DescriptionsTest, FaultsOfAChoiceAreSeen) {
  const NameList members = {"large", "small"};
  const std::string other = "1 octets before the extension bit are not told";
  const std::string differs = "the alternatives are not those of the union, in its order";
  EXPECT_EQ(FaultsOf<ForgottenAlternative>(members), NameList({differs, other}));
  EXPECT_EQ(FaultsOf<AlternativeTwice>(members), NameList({"none is told twice", other}));
  const NameList outside = FaultsOf<AlternativeOutsideUnion>(members);
  EXPECT_NE(std::find(outside.begin(), outside.end(), "other is no member of the union"), outside.end());
  EXPECT_EQ(FaultsOf<NoRoots>(members), NameList({"0 root alternatives", other}));
}

}  // namespace
}  // namespace kelvra

#include "kelvra/end_descriptions.h"
