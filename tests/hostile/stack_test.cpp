// The maximum stack depth of a decode and of a release. The test paints the unused stack first and inspects it
// afterwards.
#include <gtest/gtest.h>

#include <algorithm>

#include "families.h"
#include "faults/fault_test.h"
#include "hostile/hostile_messages.h"

// A sanitizer's frames are larger, and partly outside the stack.
#if !defined(KELVRA_SANITIZED)

namespace kelvra::test {
namespace {

constexpr size_t kWatched = 128 << 10;
constexpr size_t kPaintedBelow = 4 << 10;  // more than the frames of painter and inspector differ by
constexpr size_t kDeepest = 64 << 10;
constexpr uint8_t kPaint = 0xA7;

// The area of the stack below a caller.
[[gnu::always_inline]] inline volatile uint8_t* AreaBelow(size_t octets) {
  auto* area = static_cast<volatile uint8_t*>(__builtin_alloca(octets));
  __asm__ volatile("" : "+r"(area) : : "memory");
  return area;
}

[[gnu::noinline]] void Paint() {
  constexpr size_t kOctets = kWatched + kPaintedBelow;
  volatile uint8_t* area = AreaBelow(kOctets);
  for (size_t i = 0; i < kOctets; ++i) area[i] = kPaint;
}

[[gnu::noinline]] size_t Depth() {
  const volatile uint8_t* area = AreaBelow(kWatched);
  size_t unused = 0;
  while (unused < kWatched && area[unused] == kPaint) ++unused;
  return kWatched - unused;
}

// Keeps the records off the measured stack, and the dynamic linker, which binds functions at their first call.
template <class MessageFamily>
size_t DepthOf(const std::vector<uint8_t>& octets) {
  static typename MessageFamily::Record record;
  const auto decodeAndRelease = [&octets] {
    MessageFamily::Decode(&record, octets.data(), octets.size());
    MessageFamily::Release(&record);
  };
  decodeAndRelease();
  Paint();
  decodeAndRelease();
  return Depth();
}

size_t DepthOf(const Message& message) {
  switch (message.family) {
    case Family::kRas: return DepthOf<Ras>(message.octets);
    case Family::kQ931: return DepthOf<Q931>(message.octets);
    default: return DepthOf<H245>(message.octets);
  }
}

using Stack = FaultTest;

TEST_F(Stack, StaysWithinItsBoundAtTheDepthLimit) {
  size_t deepest[3] = {};
  const auto measure = [&](const Message& message) {
    size_t& depth = deepest[static_cast<size_t>(message.family)];
    depth = std::max(depth, DepthOf(message));
  };
  for (const Message& message : HostileMessages(65535)) measure(message);
  for (const Message& message : Corpus()) measure(message);
  printf("stack: RAS %zu, call signalling %zu, H.245 %zu octets\n", deepest[0], deepest[1], deepest[2]);
  for (const size_t depth : deepest) {
    EXPECT_LE(depth, kDeepest);
    EXPECT_GT(depth, 500U) << "nothing was painted";
  }
}

}  // namespace
}  // namespace kelvra::test

#endif
