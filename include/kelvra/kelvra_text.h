/* kelvra_text: messages as JSON, for scripts and for programs in any language.
 *
 * A library of its own, in addition to that of kelvra.h. An object of JSON is the same as a line of
 * `kelvra-dump --format json`: family, name, result and ok of the library's export, octets, complete, fault where the
 * message is not complete, and message with what was read of it by the names of the ASN.1.
 *
 * Texts are UTF-8, end with a zero octet and belong to the caller, who gives each to kelvra_text_free. Where a text is
 * handed out through a pointer, the pointer is null whenever there is none. No function throws or keeps a global state;
 * different threads may call them at the same time, but each capture is used by one thread at a time. A thread keeps
 * some working memory until it ends. */
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

/* What the functions return; negative: an error. Later versions may add to them. */
enum kelvra_text_status {
  KELVRA_TEXT_OK = 0,
  KELVRA_TEXT_END = 1,    /* of a capture: no more messages */
  KELVRA_TEXT_LOSS = 2,   /* of a capture: octets that should have held messages do not; the text says which */
  KELVRA_TEXT_NOTICE = 3, /* of a capture: a remark on it that is no loss */
  KELVRA_TEXT_BAD_ARGUMENT = -1,
  KELVRA_TEXT_OUT_OF_MEMORY = -2,
  KELVRA_TEXT_UNREADABLE = -3, /* the capture cannot be read, or read on; the text says why */
  KELVRA_TEXT_INTERNAL = -4    /* a fault of the library; the text says what is known of it */
};

/* The version of the library, "1.0.0"; not to be released. */
const char* KELVRA_TEXT_CALL kelvra_text_version(void);

/* Decodes one message. KELVRA_TEXT_OK whenever there is an object, also of a message that is malformed or cut short:
 * its members complete and fault say so. `octets` may be null where there are none. */
int KELVRA_TEXT_CALL kelvra_text_decode(int family, const uint8_t* octets, size_t length, char** json);

/* Releases a text; null is ignored. */
void KELVRA_TEXT_CALL kelvra_text_free(char* text);

typedef struct kelvra_text_capture kelvra_text_capture;

/* Opens a capture (pcap or pcapng) by its path, "-" for standard input, and reads its header. After KELVRA_TEXT_OK the
 * caller closes it; otherwise *capture is null and *error says why. */
int KELVRA_TEXT_CALL kelvra_text_open_capture(const char* path, kelvra_text_capture** capture, char** error);

/* Adds a port to those by which messages are found: UDP 1718 and 1719 for RAS, TCP 1720 for call signalling, and the
 * addresses that messages announce. Before the first message is asked for. */
int KELVRA_TEXT_CALL kelvra_text_add_port(kelvra_text_capture* capture, int family, uint16_t port);

/* The next message of a capture, in the order in which they were completed. The object also has frame, time, source and
 * destination. KELVRA_TEXT_LOSS and KELVRA_TEXT_NOTICE come with words for a person, and messages may follow;
 * after KELVRA_TEXT_END and after an error none do, and the same status comes again. */
int KELVRA_TEXT_CALL kelvra_text_next(kelvra_text_capture* capture, char** text);

/* Null is ignored. */
void KELVRA_TEXT_CALL kelvra_text_close_capture(kelvra_text_capture* capture);

#ifdef __cplusplus
}
#endif

#endif
