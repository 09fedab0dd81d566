// Decodes a gatekeeperReject with its spare octet using the installed library, and releases it.
#include <stdio.h>

#include "kelvra/kelvra.h"

int main() {
  const uint8_t octets[] = {0x08, 0x00, 0x81, 0x76, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04, 0x40, 0x00};
  kelvra::h225::RasMessageRecord record;
  const intptr_t end = KelvraDecodeRASMessage(&record, octets, sizeof octets);
  const unsigned sequenceNumber = record.gatekeeperReject.requestSeqNum;
  KelvraFreeRASMessage(&record);
  printf("gatekeeperReject %u\n", sequenceNumber);
  return end != 0 && sequenceNumber == 33143 ? 0 : 1;
}
