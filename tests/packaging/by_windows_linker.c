// A C program for the Windows compilers' own formats, without a C library: decodes a gatekeeperReject with its spare
// octet, and ends with status 0 when its number is right.
#include <kelvra/kelvra_c.h>

static kelvra_h225_ras_message_record record;

int start(void) {
  static const uint8_t octets[] = {0x08, 0x00, 0x81, 0x76, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04, 0x40, 0x00};
  if (KelvraDecodeRASMessage(&record, octets, sizeof octets) == 0) return 1;
  const int isRight = record.as.gatekeeperReject.requestSeqNum == 33143;
  KelvraFreeRASMessage(&record);
  return isRight ? 0 : 2;
}
