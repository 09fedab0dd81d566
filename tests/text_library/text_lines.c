/* Prints what kelvra_text makes of messages, as a program in C sees it:
 *
 *   text_lines capture FILE [FAMILY:PORT...]   the objects of a capture; losses and notices on stderr
 *   text_lines FAMILY <HEX                     one object for each line of hexadecimal octets
 *   text_lines arguments FILE                  what wrong arguments are answered with; FILE is a capture
 *
 * The exit status is 2 for an error of the library, whose text goes to stderr, and 3 for what the tests must not see.
 */
#include <kelvra/kelvra_text.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define LONGEST 65536

static int family_of(const char* name) {
  if (strncmp(name, "ras", 3) == 0) return KELVRA_TEXT_RAS;
  if (strncmp(name, "q931", 4) == 0) return KELVRA_TEXT_Q931;
  if (strncmp(name, "h245", 4) == 0) return KELVRA_TEXT_H245;
  fprintf(stderr, "no family %s\n", name);
  exit(3);
}

static void require(int holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "it does not hold that %s\n", what);
  exit(3);
}
#define REQUIRE(condition) require(condition, #condition)

static void print(FILE* to, const char* kind, char* text) {
  REQUIRE(text != NULL);
  fprintf(to, "%s%s\n", kind, text);
  kelvra_text_free(text);
}

static int fail(int status, char* text) {
  fprintf(stderr, "%d %s\n", status, text != NULL ? text : "");
  kelvra_text_free(text);
  return 2;
}

static int print_capture(int count, char** arguments) {
  kelvra_text_capture* capture;
  char* text;
  int status = kelvra_text_open_capture(arguments[0], &capture, &text);
  if (status != KELVRA_TEXT_OK) {
    REQUIRE(capture == NULL);
    return fail(status, text);
  }
  for (int i = 1; i < count; ++i) {
    const char* port = strchr(arguments[i], ':') + 1;
    REQUIRE(kelvra_text_add_port(capture, family_of(arguments[i]), (uint16_t)atoi(port)) == KELVRA_TEXT_OK);
  }
  while ((status = kelvra_text_next(capture, &text)) >= KELVRA_TEXT_OK && status != KELVRA_TEXT_END) {
    if (status == KELVRA_TEXT_OK) print(stdout, "", text);
    if (status == KELVRA_TEXT_LOSS) print(stderr, "loss: ", text);
    if (status == KELVRA_TEXT_NOTICE) print(stderr, "notice: ", text);
  }
  /* What ends a capture goes on being said. */
  char* again;
  REQUIRE(kelvra_text_next(capture, &again) == status);
  kelvra_text_free(again);
  kelvra_text_close_capture(capture);
  return status == KELVRA_TEXT_END ? 0 : fail(status, text);
}

static int print_messages(int family) {
  static char line[2 * LONGEST + 2];
  static uint8_t octets[LONGEST];
  while (fgets(line, sizeof line, stdin) != NULL) {
    size_t length = 0;
    unsigned octet;
    while (sscanf(line + 2 * length, "%2x", &octet) == 1) octets[length++] = (uint8_t)octet;
    char* json;
    const int status = kelvra_text_decode(family, octets, length, &json);
    if (status != KELVRA_TEXT_OK) return fail(status, json);
    print(stdout, "", json);
  }
  return 0;
}

static int try_arguments(const char* file) {
  static const uint8_t octets[1] = {0};
  kelvra_text_capture* capture;
  char* text = (char*)octets;
  REQUIRE(kelvra_text_decode(3, octets, 1, &text) == KELVRA_TEXT_BAD_ARGUMENT && text == NULL);
  REQUIRE(kelvra_text_decode(-1, octets, 1, &text) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_decode(KELVRA_TEXT_RAS, NULL, 1, &text) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_decode(KELVRA_TEXT_RAS, octets, 1, NULL) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_decode(KELVRA_TEXT_RAS, NULL, 0, &text) == KELVRA_TEXT_OK && text != NULL);
  kelvra_text_free(text);
  kelvra_text_free(NULL);

  REQUIRE(kelvra_text_open_capture(NULL, &capture, &text) == KELVRA_TEXT_BAD_ARGUMENT && capture == NULL);
  REQUIRE(kelvra_text_open_capture(file, NULL, &text) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_open_capture(file, &capture, NULL) == KELVRA_TEXT_BAD_ARGUMENT && capture == NULL);
  REQUIRE(kelvra_text_next(NULL, &text) == KELVRA_TEXT_BAD_ARGUMENT);
  kelvra_text_close_capture(NULL);

  REQUIRE(kelvra_text_add_port(NULL, KELVRA_TEXT_RAS, 1) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_open_capture(file, &capture, &text) == KELVRA_TEXT_OK && text == NULL);
  REQUIRE(kelvra_text_next(capture, NULL) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_add_port(capture, 3, 1) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_add_port(capture, KELVRA_TEXT_RAS, 0) == KELVRA_TEXT_BAD_ARGUMENT);
  REQUIRE(kelvra_text_next(capture, &text) == KELVRA_TEXT_OK);
  kelvra_text_free(text);
  /* Too late: messages by this port may have been passed over. */
  REQUIRE(kelvra_text_add_port(capture, KELVRA_TEXT_RAS, 1) == KELVRA_TEXT_BAD_ARGUMENT);
  kelvra_text_close_capture(capture);
  printf("%s\n", kelvra_text_version());
  return 0;
}

int main(int count, char** arguments) {
  if (count > 2 && strcmp(arguments[1], "capture") == 0) return print_capture(count - 2, arguments + 2);
  if (count == 3 && strcmp(arguments[1], "arguments") == 0) return try_arguments(arguments[2]);
  return count == 2 ? print_messages(family_of(arguments[1])) : 3;
}
