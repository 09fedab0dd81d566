// Reads every text of the carried messages, whole and cut, through text.h.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include "families.h"
#include "kelvra/kelvra.h"
#include "kelvra/text.h"
#include "vectors/vectors.h"

namespace {

using kelvra::test::H245;
using kelvra::test::Q931;
using kelvra::test::Ras;

template <class T>
concept HasText = requires(const T& record) {
  kelvra::TextOf(record);
};

// Takes every text of a record.
struct TextVisitor : kelvra::EmptyVisitor {
  size_t octets = 0;

  void ObjectIdentifier(const char*, const kelvra::ObjectIdentifierValue& value) { Add(kelvra::TextOf(value)); }
  void WideCharacters(const char*, const kelvra::BMPStringValue& value) { Add(kelvra::TextOf(value)); }
  void Octets(const char*, kelvra::Slot<uint8_t> slot, uint32_t count, kelvra::OctetNotation notation) {
    if (notation == kelvra::OctetNotation::kCharacters) Add(kelvra::CharactersOf({count, slot.Get()}));
    if (notation == kelvra::OctetNotation::kDigits) Add(kelvra::DigitsOf({count, slot.Get()}));
  }
  template <class R>
  void Record(const char*, R& record) {
    if constexpr (HasText<R>) Add(kelvra::TextOf(record));
    R::Walk(record, *this);
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    if (slot.Get() != nullptr) Record(name, *slot.Get());
  }
  template <class L, class Show>
  void List(const char*, L list, Show show) {
    for (auto& element : kelvra::ElementsOf(list.Elements().Get(), list.Size())) show(element);
  }
  void Add(const std::string& text) { octets += text.size(); }
};

// Every message, whole and cut at every third octet, before and after the release.
template <class Family>
size_t TextOfCutMessages(const std::string& file) {
  TextVisitor visitor;
  const auto record = std::make_unique<typename Family::Record>();
  for (const Vector& vector : LoadVectors(file)) {
    for (size_t cut = 0; cut <= vector.octets.size(); cut += 3) {
      const ExactBuffer buffer(vector.octets, vector.octets.size() - cut, Family::kSpareOctets);
      Family::Decode(record.get(), buffer.Data(), buffer.Size());
      visitor.Record(nullptr, *record);
      Family::Release(record.get());
      const size_t before = visitor.octets;
      visitor.Record(nullptr, *record);
      EXPECT_EQ(visitor.octets, before) << vector.name << " shows text after its release";
    }
  }
  return visitor.octets;
}

TEST(Text, OfCutAndReleasedMessagesStaysWithinTheirBlocks) {
  EXPECT_GT(TextOfCutMessages<Ras>("ras.jsonl"), 0U);
  EXPECT_GT(TextOfCutMessages<Q931>("q931.jsonl"), 0U);
  EXPECT_GT(TextOfCutMessages<H245>("h245.jsonl"), 0U);
}

}  // namespace
