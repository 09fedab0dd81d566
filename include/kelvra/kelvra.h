// Kelvra: decodes H.323 signalling into plain packed records.
//
// Each family has a function that decodes one message and one that releases the heap blocks which a
// decode attached to the record. The caller owns the record and the buffer. A decode clears the whole
// record first, so every absent member, count and pointer is zero. The buffer is only read, and only
// within its length. A record that was decoded, in whole or in part, is released once it is no longer
// needed; releasing it again does nothing. Between calls nothing of a message is kept but the H.225.0 version
// that it named, on which no decode depends. Different threads may decode at the same time, each into a record
// of its own.
#pragma once

#include <stdint.h>

#include "alternative.h"
#include "h225/call/q931_message.h"
#include "h225/ras/ras_message.h"
#include "h245/messages/h245_message.h"

#if defined(KELVRA_C_FUNCTIONS)
#error "kelvra/kelvra_c.h declares the functions for C; include kelvra/kelvra.h before it"
#endif

#if defined(KELVRA_BUILDING_LIBRARY) && !defined(_WIN32)
#define KELVRA_API __attribute__((visibility("default")))
#else
#define KELVRA_API
#endif

#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#if defined(_MSC_VER)
#define KELVRA_CALL __cdecl
#else
#define KELVRA_CALL __attribute__((cdecl))
#endif
#else
#define KELVRA_CALL
#endif

extern "C" {

// Decodes one H.225.0 RasMessage (one UDP datagram of port 1718 or 1719).
//
// Returns the address of the first octet after the message, or 0 when the message was malformed or cut
// short, or an argument is null. The address lies beyond the buffer when the message ends with an open type
// that announces more octets than there are: compare it with the end of the buffer before you use it. On
// failure the record's blocks are already released and its pointers null; tags, counts and plain values
// keep what was decoded.
// Only the low 16 bits of `length` count. A message that ends exactly with its buffer is refused,
// because success is judged by the reader standing before the end: hand over one spare octet (zero)
// after the message and count it in `length`.
// One octet is not always enough. Where a sender of a later edition has put additions that are unknown here into
// members that are known, the decoder skips open types past the end of the message. With a few more zero octets
// such a message is accepted (1E0000010D028000012A044001AA0000012B with two); the price is that more messages which
// were cut short are accepted too. Of 12,000 generated messages dense with unknown additions 1,050 are refused with
// one spare octet and 255 with eight; of 12,840 cut messages 1,294 are accepted with one and 4,066 with eight.
KELVRA_API intptr_t KELVRA_CALL KelvraDecodeRASMessage(kelvra::h225::RasMessageRecord* record, const uint8_t* buffer,
                                                       uint32_t length);
// A null record is ignored.
KELVRA_API void KELVRA_CALL KelvraFreeRASMessage(kelvra::h225::RasMessageRecord* record);

// Decodes one Q.931 call-signalling message after its TPKT header, with the H323-UserInformation in
// its user-user element. `buffer` starts with the 4 octets of the TPKT header.
//
// Returns 0 when decoded; -1 on a null argument, or when the user-user element is missing or malformed
// (the Q.931 members are then filled all the same, and the user information is released); -10 when the
// low 16 bits of `length` are zero.
// A negative length, such as that of a failed receive, stands for a buffer of no octets. Of a positive one the
// low 16 bits tell the length of the frame; all of it bounds what is read, as an element may claim more than
// the frame. Octets beyond the buffer read as zero.
KELVRA_API int32_t KELVRA_CALL KelvraDecodeQ931Message(kelvra::h225::Q931MessageRecord* record, const uint8_t* buffer,
                                                       int32_t length);
// A null record is ignored.
KELVRA_API void KELVRA_CALL KelvraFreeQ931Message(kelvra::h225::Q931MessageRecord* record);

// Decodes one H.245 MultimediaSystemControlMessage (a TPKT payload, or an element of h245Control).
//
// Returns 1 when the reader ended exactly at the end of the buffer, which a decode that failed outside an
// open type does too; 0 when octets were left over, or when an open type or the data of a private message
// announced more octets than there are; -1 on a null argument. Only the low 16 bits of `length` count.
// In a message that was cut short a number after the cut holds the least value of its range, which need not be
// zero: of 03 00 the channel number is 1.
// Whatever the result, the caller releases the record.
KELVRA_API int32_t KELVRA_CALL KelvraDecodeH245Message(kelvra::h245::H245MessageRecord* record, const uint8_t* buffer,
                                                       uint32_t length);
// `record` must not be null.
KELVRA_API void KELVRA_CALL KelvraFreeH245Message(kelvra::h245::H245MessageRecord* record);

}  // extern "C"
