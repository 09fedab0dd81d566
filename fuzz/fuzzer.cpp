// The libFuzzer entry point: decodes one family, and compares the observed decode with the plain one.
#include <stdlib.h>

#include "decode_and_release.h"
#include "observer/comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t size) {
  kelvra::fuzz::KELVRA_FUZZ_BODY(octets, size);
  if (!kelvra::test::ObservedDecodeAgrees(kelvra::test::Family::KELVRA_FUZZ_FAMILY, octets, size)) abort();
  return 0;
}
