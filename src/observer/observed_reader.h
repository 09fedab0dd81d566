// The reader of an observed decode (observer/observer.h). per/decoder.h reports each component to it.
#pragma once

#include <algorithm>
#include <vector>

#include "kelvra/h225/common/protocol_identifier.h"
#include "observer/observer.h"
#include "per/decoder.h"

namespace kelvra {

class ObservedReader : public PerReader {
 public:
  static constexpr bool kObserves = true;

  ObservedReader(const PerReader& reader, DecodeObserver& observer, const ObserverRules& rules)
      : PerReader(reader), observer_(observer), rules_(rules), start_(reader.position), last_(reader.end) {
    steps_.reserve(kUsualDepth);
  }

  const ObserverRules& Rules() const { return rules_; }
  // A rule applies.
  void Depart() { departed_ = true; }
  bool Departed() const { return departed_; }

  uint64_t Bit() const { return BitOf(position) + bitOffset; }
  // The same, but never past the message or the open type around it.
  uint64_t BoundedBit() const { return std::min({Bit(), BitOf(last_), EndAround()}); }

  // Marks a component as being read while it lives.
  class Component {
   public:
    template <class Place, class Kind>
    Component(ObservedReader& reader, const char* name, Place& place, Kind kind)
        : reader_(reader), component_{name, KindOf(kind), reader.BoundedBit(), AddressOf(place)} {
      reader_.Begin(component_, HasBits(place, kind));
      NoteOctets(place, kind);
    }
    ~Component() { reader_.End(component_, EndOfOctets()); }
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

   private:
    // If an OCTET STRING does not begin at an octet boundary, the decoder does not notice a missing last octet.
    template <class Place, class Kind>
    void NoteOctets(const Place&, Kind) {}
    template <OctetNotation kNotation>
    void NoteOctets(const OctetStringValue& value, asn1::FixedStringKind<asn1::StringUnits::kOctets, kNotation>) {
      string_ = &value;
    }
    template <OctetNotation kNotation>
    void NoteOctets(const OctetStringValue& value, asn1::SizedStringKind<asn1::StringUnits::kOctets, kNotation> kind) {
      string_ = &value;
      const uint32_t range = kind.high - kind.low + 1;
      lengthBits_ = range < 256 ? PerBitsOfRange(range) : 0;
    }
    template <class Place>
    void NoteOctets(const Place&, asn1::UncountedOctetStringKind kind) {
      fixedOctets_ = kind.size;
    }
    template <class Place>
    void NoteOctets(const Place&, asn1::FixedSplitOctetStringKind kind) {
      fixedOctets_ = kind.size;
    }
    template <class Place, class Kind>
    void NoteOctets(const Place& place, asn1::AliasKind<Kind> alias) {
      NoteOctets(place, alias.kind);
    }
    template <class Place, class Kind>
    void NoteOctets(const Place& place, asn1::EvenIfMissingKind<Kind> element) {
      NoteOctets(place, element.kind);
    }
    // The bit after the octets of such a string; 0: there are none.
    uint64_t EndOfOctets() const {
      const uint64_t octets = string_ != nullptr ? string_->length : fixedOctets_;
      return octets == 0 ? 0 : (component_.firstBit + lengthBits_ + 7) / 8 * 8 + octets * 8;
    }

    ObservedReader& reader_;
    kelvra::Component component_;
    const OctetStringValue* string_ = nullptr;
    uint32_t fixedOctets_ = 0;
    uint32_t lengthBits_ = 0;
  };

  // The decode stops in the innermost component, for a reason that does not move the reader to its end.
  void Stop(PerCause reason);
  // An open type begins, of which the innermost component is the value, or the next component.
  void EnteredOpenType() { steps_.back().end = std::min(EndAround(), EndOfOpenType()); }
  void EnteredOpenTypeOfNext() { endOfNext_ = EndOfOpenType(); }
  // An open type was left, which may have brought the reader back from its end.
  void LeftOpenType();

  void Begin(const kelvra::Component& component, bool hasBits);
  // `endOfOctets`: where an OCTET STRING should end; 0: the component is not one.
  void End(const kelvra::Component& component, uint64_t endOfOctets);

  // The bitmap of the innermost component announces `counted` unknown additions, plus known ones that the sender's
  // version lacks.
  void BeganAdditions(int32_t counted);
  // How many unknown additions of the innermost component to skip; the decoder has counted `counted`.
  int32_t UnknownAdditions(int32_t counted);

 private:
  static constexpr size_t kUsualDepth = 32;

  struct Step {
    const kelvra::Component* component = nullptr;
    uint32_t elements = 0;  // begun so far
    uint32_t index = 0;     // among the elements of its list
    bool isRead = true;
    bool isAtAdditions = false;  // the bitmap is read, but no addition
    int32_t unknown = -1;        // unknown additions; below 0: the decoder's count
    uint64_t end = kNoOpenType;  // the bit at which the innermost open type around it ends
  };

  static constexpr int32_t kUnset = -1;
  static constexpr uint64_t kNoOpenType = UINT64_MAX;

  uint64_t BitOf(const uint8_t* octet) const {
    return uint64_t{reinterpret_cast<uintptr_t>(octet) - reinterpret_cast<uintptr_t>(start_)} * 8;
  }
  void SettleUnknownAdditions(Step& step);

  template <class T>
  static const void* AddressOf(const T& record) {
    return &record;
  }
  template <class T>
  static const void* AddressOf(const asn1::Scalar<T>& scalar) {
    return scalar.Address();
  }
  template <class T>
  static const void* AddressOf(const Slot<T>& slot) {
    return slot.Address();
  }
  template <class Element, class Count>
  static const void* AddressOf(const ListView<Element, Count>& list) {
    return list.Elements().Address();
  }

  static ComponentKind KindOf(asn1::BooleanKind) { return ComponentKind::kBoolean; }
  static ComponentKind KindOf(asn1::NullKind) { return ComponentKind::kNull; }
  static ComponentKind KindOf(asn1::IntegerKind) { return ComponentKind::kInteger; }
  static ComponentKind KindOf(asn1::ExtensibleIntegerKind) { return ComponentKind::kInteger; }
  static ComponentKind KindOf(asn1::UnconstrainedIntegerKind) { return ComponentKind::kInteger; }
  static ComponentKind KindOf(asn1::ObjectIdentifierKind) { return ComponentKind::kObjectIdentifier; }
  static ComponentKind KindOf(asn1::DefinedTypeKind) { return ComponentKind::kRecord; }
  static ComponentKind KindOf(asn1::InlineTypeKind) { return ComponentKind::kRecord; }
  static ComponentKind KindOf(asn1::ExtendedInlineTypeKind) { return ComponentKind::kRecord; }
  static ComponentKind KindOf(asn1::ContainingKind) { return ComponentKind::kRecord; }
  static ComponentKind KindOf(asn1::IndirectKind) { return ComponentKind::kRecord; }
  template <class Kind>
  static ComponentKind KindOf(asn1::AliasKind<Kind> alias) {
    return KindOf(alias.kind);
  }
  template <class Kind>
  static ComponentKind KindOf(asn1::EvenIfMissingKind<Kind> element) {
    return KindOf(element.kind);
  }
  template <class Kind>
  static ComponentKind KindOf(asn1::SequenceOfKind<Kind>) {
    return ComponentKind::kList;
  }
  template <class Kind>
  static ComponentKind KindOf(asn1::SizedSequenceOfKind<Kind>) {
    return ComponentKind::kList;
  }
  template <class Kind>
  static ComponentKind KindOf(Kind) {
    return ComponentKind::kString;
  }

  // Whether the component itself takes bits, and is therefore missing at the end of the message. For a record its
  // components decide, unless its decoder checks on entry.
  template <class Place, class Kind>
  static bool HasBits(const Place&, Kind kind) {
    const ComponentKind form = KindOf(kind);
    return form != ComponentKind::kNull && form != ComponentKind::kRecord;
  }
  template <class T>
  static bool HasBits(const T&, asn1::DefinedTypeKind) {
    return kReportsFailures<T> || kIsNullChoice<T>;
  }
  template <class Place, class Kind>
  static bool HasBits(const Place&, asn1::AliasKind<Kind>) {
    return true;
  }
  static bool HasBits(const asn1::Scalar<uint8_t>&, asn1::IntegerKind kind) { return kind.low != kind.high; }

  std::string Path() const;
  // The bit that a read had reached before the reader moved to its end; 0: it did not move.
  uint64_t Reached() const;
  // Of the open type that has just begun.
  uint64_t EndOfOpenType() const { return Bit() + uint64_t{openTypes.lengths[openTypes.index]} * 8; }
  uint64_t EndAround() const { return steps_.empty() ? kNoOpenType : steps_.back().end; }
  void Report(PerCause reason, uint64_t bit);

  DecodeObserver& observer_;
  ObserverRules rules_;
  const uint8_t* start_;
  const uint8_t* last_;               // the end of the message; `end` may be nearer for a while
  std::vector<Step> steps_;           // innermost last
  uint64_t endOfNext_ = kNoOpenType;  // of the open type that holds the next component
  bool isStopped_ = false;
  bool departed_ = false;
  int32_t sharedCount_ = 0;  // the message's counter, saved while a SEQUENCE's additions begin
};

// Overloads for this reader that apply the rules.
int32_t PerCountUnknownAdditions(ObservedReader& reader, int32_t additions);
void SkipOpenTypes(ObservedReader& reader, int32_t count);

namespace h225 {

Status DecodeKind(ObjectIdentifierValue& value, ObservedReader& reader, RegistrationProtocolIdentifierKind);

}  // namespace h225

}  // namespace kelvra
