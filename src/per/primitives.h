// One primitive for each PER construct (X.691, aligned variant).
//
// Each looks at the reader first and, where it stands at its end, reads nothing and yields 0 or null.
// None reports an error: what it cannot decode (a fragmented length, a length past the end, a refused
// block) moves the reader to its end. A pointer that is returned is a zeroed block that the caller
// owns and keeps in its record.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "per/reader.h"
#include "record/values.h"

namespace kelvra {

// The range that stands for 2^32 values.
inline constexpr uint32_t kFullRange = 0xFFFFFFFF;

// A zeroed block of `size` octets against the message's allowance; refused, the reader moves to its end.
void* PerAllocate(PerReader& reader, uint64_t size);

// Constrained whole number of `range` values (10.5), less its lower bound.
uint32_t PerReadConstrainedWholeNumber(PerReader& reader, uint32_t range);
// Unconstrained length determinant (10.9), 0 to 16383. Fragments (10.9.3.8) are refused.
uint32_t PerReadLength(PerReader& reader);
// Normally small non-negative whole number (10.6).
uint32_t PerReadNormallySmall(PerReader& reader);
// Semi-constrained whole number (10.7) with lower bound 0, up to 32 bits.
uint32_t PerReadUnsignedWithLength(PerReader& reader);
// Unconstrained whole number (10.8), up to 32 bits.
int32_t PerReadInteger(PerReader& reader);

// OCTET STRING (16) of `count` octets, always aligned.
uint8_t* PerReadOctets(PerReader& reader, uint32_t count);
// OCTET STRING with a length determinant. `length` may be null; it is stored even where the octets are missing.
uint8_t* PerReadOctetString(PerReader& reader, uint32_t* length);
// OCTET STRING whose length is constrained to `range` values from `lowerBound` on.
uint8_t* PerReadSizedOctets(PerReader& reader, uint32_t* length, uint32_t range, uint32_t lowerBound);
// OCTET STRING with a length determinant; a length past the end leaves an empty value.
void PerReadOctetStringRecord(OctetStringValue& value, PerReader& reader);
// BIT STRING (15) of `count` bits, aligned when longer than 16.
uint8_t* PerReadBitString(PerReader& reader, uint32_t count);

// Strings of 4-bit characters, `count` of them: the codes as sent; NumericString; TBCD-STRING.
uint8_t* PerReadNibbles(PerReader& reader, uint32_t count);
uint8_t* PerReadNumericString(PerReader& reader, uint32_t count);
uint8_t* PerReadTBCDString(PerReader& reader, uint32_t count);
// PrintableString from its canonical index, 8 bits a character. The capitals A to S become spaces.
uint8_t* PerReadPrintableString(PerReader& reader, uint32_t count);
// BMPString of `count` 16-bit characters.
uint16_t* PerReadBMPString(PerReader& reader, uint32_t count);

// One subidentifier, base 128 (X.690 8.19); keeps the low 32 bits.
uint32_t PerReadSubidentifier(PerReader& reader);
// OBJECT IDENTIFIER (23).
void PerReadObjectIdentifier(ObjectIdentifierValue& value, PerReader& reader);

}  // namespace kelvra
