// Tokens and the mechanisms around them: what later editions add is passed over.
#include "kelvra/h235/tokens.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h225/common/crypto_tokens.h"
#include "per/decoder.h"

namespace kelvra::h235 {
namespace {

using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;
using test::TextOf;

TEST(ClearTokenTest, LaterAdditionsAreSkipped) {
  BitWriter w;
  w.Bit(true).Bits(0, 8).OpenType({0x2A});
  Additions(w, 0b0111, 4).OpenType(BitWriter().Bits(0, 7).Align().Bits('S', 16)).OpenType({1, 2, 3}).OpenType({4});
  Input input(Marked(w));
  Owned<ClearToken> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasEckasdhkey, 0U);
  EXPECT_EQ(TextOf(m->sendersID), u"S");
  EXPECT_EQ(input.Next(), kMarker);
}

// The octet after an extension alternative; `roots` are the bits of the CHOICEs around it.
template <class Choice>
uint32_t NextAfterAlternative(uint32_t index, const BitWriter& roots = {}) {
  Input input(Marked(BitWriter(roots).Bit(true).NormallySmall(index).OpenType({0xC0, 1, 2})));
  Owned<Choice> m;
  EXPECT_EQ(Decode(*m, input.reader), kDecoded) << index;
  return input.Next();
}

TEST(TokensTest, UnknownAlternativesAreSkippedByTheirFullIndex) {
  for (const uint32_t index : {1U, 256U}) {  // 256 has the tag of authenticationBES
    EXPECT_EQ(NextAfterAlternative<CryptoToken>(index), kMarker);
    EXPECT_EQ(NextAfterAlternative<h225::CryptoH323Token>(index), kMarker);
    EXPECT_EQ(NextAfterAlternative<h225::IntegrityMechanism>(index), kMarker);
    const BitWriter nonIso = BitWriter().Bits(3, 3);
    EXPECT_EQ(NextAfterAlternative<h225::IntegrityMechanism>(index, nonIso), kMarker);
    const BitWriter hashed = BitWriter().Bits(3, 3).Bits(1, 3);
    EXPECT_EQ(NextAfterAlternative<h225::IntegrityMechanism>(index, hashed), kMarker);
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType({0xC0, 1, 2})));
    Owned<AuthenticationMechanism> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->authenticationBES.isExtension, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

}  // namespace
}  // namespace kelvra::h235
