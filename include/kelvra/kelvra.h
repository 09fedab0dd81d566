// Kelvra: decodes H.323 signalling into plain packed records.
//
// Each family has a function that decodes one message and one that releases the heap blocks that a decode
// attached to the record. The caller owns the record and the buffer. A decode first clears the whole record, so
// every absent member, count and pointer is zero. It only reads the buffer, and only within its length. Release
// every decoded record, complete or partial, when it is no longer needed; releasing it again does nothing. Only
// the H.225.0 version that a message names is kept between calls, and no decode depends on it. Threads may
// decode concurrently, each into its own record.
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
// Returns the address of the first octet after the message, or 0 if the message is malformed or cut short, or an
// argument is null. The address is past the buffer if the message ends with an open type that announces more
// octets than are left: compare it with the end of the buffer before you use it. On failure the record's blocks
// are already released and its pointers null; tags, counts and plain values keep what was decoded.
//
// Only the low 16 bits of `length` are used. A decode that stops exactly at the end of the buffer counts as failed, so
// a message that fills its buffer is refused: add one zero octet after the message and count it in `length`.
// One octet is not always enough. If a known member holds additions of a later edition, the decoder skips open
// types past the end of the message. More zero octets make it accept such a message
// (1E0000010D028000012A044001AA0000012B needs two), but also more messages that were cut short. Of 12,000 generated
// messages dense with unknown additions, 1,050 are refused with one spare octet and 255 with eight; of 12,840 cut
// messages, 1,294 are accepted with one and 4,066 with eight.
KELVRA_API intptr_t KELVRA_CALL KelvraDecodeRASMessage(kelvra::h225::RasMessageRecord* record, const uint8_t* buffer,
                                                       uint32_t length);
// A null record is ignored.
KELVRA_API void KELVRA_CALL KelvraFreeRASMessage(kelvra::h225::RasMessageRecord* record);

// Decodes one Q.931 call-signalling message after its TPKT header, with the H323-UserInformation in
// its user-user element. `buffer` starts with the 4 octets of the TPKT header.
//
// Returns 0 on success; -1 if an argument is null or the user-user element is missing or malformed (the Q.931
// members are still filled, and the user information is released); -10 if the low 16 bits of `length` are zero.
//
// The low 16 bits of `length` give the frame length. The full value bounds reading, because an element may claim
// more than the frame; octets past the buffer read as zero. A negative length, such as that of a failed receive,
// means an empty buffer.
KELVRA_API int32_t KELVRA_CALL KelvraDecodeQ931Message(kelvra::h225::Q931MessageRecord* record, const uint8_t* buffer,
                                                       int32_t length);
// A null record is ignored.
KELVRA_API void KELVRA_CALL KelvraFreeQ931Message(kelvra::h225::Q931MessageRecord* record);

// Decodes one H.245 MultimediaSystemControlMessage (a TPKT payload, or an element of h245Control).
//
// Returns 1 if the reader ended exactly at the end of the buffer, as it also does after a failure outside an open
// type; 0 if octets were left over, or if an open type or the data of a private message announced more octets than
// are left; -1 if an argument is null. Only the low 16 bits of `length` are used.
// In a message that was cut short, a number after the cut holds the least value of its range, which need not be
// zero: in 03 00 the channel number is 1.
// The caller releases the record whatever the result.
KELVRA_API int32_t KELVRA_CALL KelvraDecodeH245Message(kelvra::h245::H245MessageRecord* record, const uint8_t* buffer,
                                                       uint32_t length);
// `record` must not be null.
KELVRA_API void KELVRA_CALL KelvraFreeH245Message(kelvra::h245::H245MessageRecord* record);

}  // extern "C"
