/* kelvra_text: messages as JSON, for scripts and for programs in any language.
 *
 * This library is separate from that of kelvra.h. A JSON object is the same as a line of `kelvra-dump --format json`:
 * family, name, result and ok of the library's export, octets, complete, fault if the message is not complete, and
 * message with what was read, under its ASN.1 names.
 *
 * Texts are UTF-8 and zero-terminated. The caller owns each text and releases it with kelvra_text_free. An output
 * pointer is null if there is no text. No function throws or keeps global state. Threads may call the functions
 * concurrently, but only one thread at a time may use a capture. A thread keeps some working memory until it ends. */
#ifndef KELVRA_KELVRA_TEXT_H_
#define KELVRA_KELVRA_TEXT_H_

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#if defined(_MSC_VER)
#define KELVRA_TEXT_CALL __cdecl
#else
#define KELVRA_TEXT_CALL __attribute__((cdecl))
#endif
#else
#define KELVRA_TEXT_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

enum kelvra_text_family {
  KELVRA_TEXT_RAS = 0,  /* one UDP datagram; no spare octet is needed */
  KELVRA_TEXT_Q931 = 1, /* starts with the TPKT header */
  KELVRA_TEXT_H245 = 2  /* starts after the TPKT header */
};

/* What the functions return; errors are negative. Later versions may add values. */
enum kelvra_text_status {
  KELVRA_TEXT_OK = 0,
  KELVRA_TEXT_END = 1,    /* of a capture: no more messages */
  KELVRA_TEXT_LOSS = 2,   /* of a capture: octets that should hold messages do not; the text says which */
  KELVRA_TEXT_NOTICE = 3, /* of a capture: a remark that is not a loss */
  KELVRA_TEXT_BAD_ARGUMENT = -1,
  KELVRA_TEXT_OUT_OF_MEMORY = -2,
  KELVRA_TEXT_UNREADABLE = -3, /* the capture cannot be read, or not to its end; the text says why */
  KELVRA_TEXT_INTERNAL = -4    /* a fault of the library; the text says what is known */
};

/* The version of the library, "1.0.0"; do not release it. */
const char* KELVRA_TEXT_CALL kelvra_text_version(void);

/* Decodes one message. Returns KELVRA_TEXT_OK whenever there is an object, even if the message is malformed or cut
 * short, which its members complete and fault show. `octets` may be null if `length` is 0. */
int KELVRA_TEXT_CALL kelvra_text_decode(int family, const uint8_t* octets, size_t length, char** json);

/* Releases a text; null is ignored. */
void KELVRA_TEXT_CALL kelvra_text_free(char* text);

typedef struct kelvra_text_capture kelvra_text_capture;

/* Opens a capture (pcap or pcapng) by its path ("-" for standard input) and reads its header. After KELVRA_TEXT_OK the
 * caller closes it; otherwise *capture is null and *error says why. */
int KELVRA_TEXT_CALL kelvra_text_open_capture(const char* path, kelvra_text_capture** capture, char** error);

/* Adds a port to those searched for messages: UDP 1718 and 1719 for RAS, TCP 1720 for call signalling, and the
 * addresses that messages announce. Call it before the first kelvra_text_next. */
int KELVRA_TEXT_CALL kelvra_text_add_port(kelvra_text_capture* capture, int family, uint16_t port);

/* Gives the next message of a capture, in order of completion. The object also has frame, time, source and
 * destination. KELVRA_TEXT_LOSS and KELVRA_TEXT_NOTICE come with a text for the user, and messages may follow. After
 * KELVRA_TEXT_END or an error no message follows, and every call returns the same status. */
int KELVRA_TEXT_CALL kelvra_text_next(kelvra_text_capture* capture, char** text);

/* Closes a capture; null is ignored. */
void KELVRA_TEXT_CALL kelvra_text_close_capture(kelvra_text_capture* capture);

#ifdef __cplusplus
}
#endif

#endif
