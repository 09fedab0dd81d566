/* A program of somebody who has kelvra_text. */
#include <kelvra/kelvra_text.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  static const uint8_t reject[] = {0x08, 0x00, 0x00, 0x04, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x05, 0x20};
  char* json;
  if (kelvra_text_decode(KELVRA_TEXT_RAS, reject, sizeof reject, &json) != KELVRA_TEXT_OK) return 1;
  const int named = strstr(json, "\"name\":\"gatekeeperReject\"") != NULL;
  puts(json);
  kelvra_text_free(json);
  return named ? 0 : 1;
}
