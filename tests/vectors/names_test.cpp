// Compares the names of names.h and text.h with those of the carried messages.
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <utility>

#include "families.h"
#include "kelvra/kelvra.h"
#include "kelvra/text.h"
#include "vectors/vectors.h"

namespace {

using kelvra::test::H245;
using kelvra::test::Q931;
using kelvra::test::Ras;

template <class T>
concept HasAlternatives = requires(const T& record) {
  kelvra::AlternativeOf(record);
};

using NameTable = std::map<std::pair<std::type_index, uint32_t>, std::string>;

struct NamedValue {
  const std::type_info* type;
  uint32_t value;
  const char* name;
};

// The ASN.1 name of each enumerator.
const NameTable& Names() {
  using namespace kelvra;
  static const NamedValue listed[] = {
#define LIST_NAME(record, enumerator, name) {&typeid(record), record::enumerator, name},
#include "name_list.inc"
#undef LIST_NAME
  };
  static const NameTable names = [] {
    NameTable table;
    for (const auto& [type, value, name] : listed) table[{*type, value}] = name;
    return table;
  }();
  return names;
}

// Follows a record and its expected JSON in parallel.
class NameCheck : public kelvra::EmptyVisitor {
 public:
  explicit NameCheck(std::set<NameTable::key_type>& seen) : seen_(seen) {}

  template <class R>
  void Check(R& record, const Json& json) {
    if constexpr (HasAlternatives<R>) {
      CheckName({typeid(R), kelvra::AlternativeOf(record)}, kelvra::NameOf(record), json);
    }
    const Json* outer = std::exchange(json_, &json);
    R::Walk(record, *this);
    json_ = outer;
  }

  template <class R>
  void Record(const char* name, R& record) {
    Check(record, At(name));
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    if (slot.Get() != nullptr) Record(name, *slot.Get());
  }
  template <class L, class Show>
  void List(const char* name, L list, Show show) {
    const Json& array = At(name);
    size_t index = 0;
    for (auto& element : list) {
      element_ = &array.at(index++);
      show(element);
    }
  }
  void EnumeratedValue(uint32_t value, const char* identifier) {
    const auto name = Names().find({typeid(kelvra::h225::ScreeningIndicator), value});
    ASSERT_NE(name, Names().end());
    EXPECT_EQ(*json_, identifier);
    EXPECT_EQ(name->second, identifier);
    seen_.insert(name->first);
  }

 private:
  // An alternative that is unknown has no name.
  void CheckName(const NameTable::key_type& alternative, const char* name, const Json& json) {
    const auto listed = Names().find(alternative);
    if (listed == Names().end()) return;
    ASSERT_TRUE(json.is_object() && json.size() == 1) << json;
    EXPECT_EQ(json.begin().key(), listed->second);
    EXPECT_STREQ(name, listed->second.c_str());
    seen_.insert(alternative);
  }

  // An element has no name. A list that is a record of its own has a member whose name is empty.
  [[gnu::noinline]] const Json& At(const char* name) const {
    if (name == nullptr) return *element_;
    return *name == '\0' ? *json_ : json_->at(name);
  }

  std::set<NameTable::key_type>& seen_;
  const Json* json_ = nullptr;
  const Json* element_ = nullptr;
};

template <class Family>
void CheckNames(const std::string& file, std::set<NameTable::key_type>& seen) {
  const auto record = std::make_unique<typename Family::Record>();
  for (const Vector& vector : LoadVectors(file)) {
    SCOPED_TRACE(vector.name);
    const ExactBuffer buffer(vector.octets, Family::kSpareOctets);
    Family::Decode(record.get(), buffer.Data(), buffer.Size());
    NameCheck(seen).Check(*record, vector.expected);
    Family::Release(record.get());
  }
}

TEST(Names, AreThoseThatTheDecoderLeadsTo) {
  std::set<NameTable::key_type> seen;
  CheckNames<Ras>("ras.jsonl", seen);
  CheckNames<Q931>("q931.jsonl", seen);
  CheckNames<H245>("h245.jsonl", seen);
  CheckNames<H245>("private-h245.jsonl", seen);
  size_t extensions = 0;
  for (const auto& [type, alternative] : seen) extensions += alternative >= kelvra::asn1::kFirstExtension ? 1 : 0;
  // The carried messages hold nearly all of the 1,014 names.
  EXPECT_GE(seen.size(), 1000U);
  EXPECT_GE(extensions, 230U);
}

}  // namespace
