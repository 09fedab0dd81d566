// The chosen alternative of a CHOICE as one value that combines its tag and its extension bit.
//
//   switch (AlternativeOf(alias)) {
//     case h225::AliasAddress::kDialedDigits: ...
//     case h225::AliasAddress::kUrlID: ...
//     default: ...
//   }
//
// A value without an enumerator is an alternative that this library does not know, or comes from a refused message.
#pragma once

#include <stdint.h>

#include "names.h"

namespace kelvra {

namespace detail {

template <class Choice, class = void>
struct ChoicePlace {
  static asn1::ChoiceIndex Of(const Choice& choice) {
    asn1::ChoiceIndex index;
    static_cast<void>(Choice::Describe(choice, index));
    return index;
  }
};
// A CHOICE of NULLs.
template <class Choice>
struct ChoicePlace<Choice, decltype(static_cast<void>(Choice::kRoots), static_cast<void>(Choice::isExtension))> {
  static asn1::ChoiceIndex Of(const Choice& choice) {
    return {asn1::Scalar<uint8_t>(&choice.choiceTag), asn1::Flag(&choice.isExtension), true, Choice::kRoots};
  }
};
template <class Names>
struct ChoicePlace<h245::UnextensibleNullChoice<Names>, void> {
  static asn1::ChoiceIndex Of(const h245::UnextensibleNullChoice<Names>& choice) {
    return {asn1::Scalar<uint8_t>(&choice.choiceTag), asn1::Flag(nullptr), false, Names::kRoots};
  }
};

}  // namespace detail

template <class Choice>
typename Choice::Alternative AlternativeOf(const Choice& choice) {
  const asn1::ChoiceIndex index = detail::ChoicePlace<Choice>::Of(choice);
  const bool isExtension = index.isExtensible && index.extension.Get() != 0;
  return static_cast<typename Choice::Alternative>(asn1::AlternativeNumber(isExtension, index.tag.Get()));
}
// The tag of an ipSourceRoute may be that of an unknown extension alternative of its `routing`.
inline h225::TransportAddress::Alternative AlternativeOf(const h225::TransportAddress& address) {
  return address.HasTagOfRouting() ? h225::TransportAddress::kIpSourceRoute : AlternativeOf<>(address);
}

}  // namespace kelvra
