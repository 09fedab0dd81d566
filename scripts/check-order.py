#!/usr/bin/env python3
"""Holds the decoders against the records: each reads what its record holds, all of it, in its order.

  scripts/check-order.py

Records have their members in the order of the ASN.1, which is that of the encoding. So a decoder of a SEQUENCE
must read the presence bits of all its optional members in the order of the record, and then the members
likewise; and its walk must tell them so. No message need tell two presence bits apart for a swap of them to be
seen here.

Flags that follow one another are read at once, as many as there are lines that take one. What may be extended
is passed over where it is: unknown additions of a SEQUENCE, unknown alternatives of a CHOICE. And every H.225.0
and H.235 type with a name of its own asks on entry whether anything is left, and of those within another type
only one does.
"""
import itertools
import pathlib
import re
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
SOURCES = sorted((TOP / "src").glob("h2*/**/*.cpp"))
HEADERS = sorted((TOP / "src").glob("h2*/**/*.h"))
TABLE = TOP / "docs" / "records.md"
FUNCTION = re.compile(r"^(Status|void) Decode(\w*)\(([\w:]+)& m, PerReader& r[^)]*\) \{\n(.*?)^\}", re.M | re.S)
# What tells the decoder of a whole SEQUENCE from one of a part of it.
WHOLE = re.compile(r"\bm\.isExtended = (?:PerReadBit\(|flags\.Next\()")
PRESENCE = re.compile(r"\bm\.((?:has\w+|\w+Present)) = (?:PerReadBit\(|PerReadAdditionBit\(|\w+\.Next\()")
# A run of flags and the lines that take them, or a flag alone.
RUN = re.compile(r"\b(\w+) = PerRead(?:Flags|KnownAdditions)\(.*?(\d+)\);$")
TAKEN = re.compile(r"^ +(\w+)\.\w[\w.]* = (\w+)\.Next\(\);$")
ALONE = re.compile(r"^ +\w+\.\w[\w.]* = PerRead(?:Bit|AdditionBit)\(")
NAMESPACE = re.compile(r"namespace kelvra::(\w+)")
STRUCT = re.compile(r" *(?:struct|union) (\w+) ?[{:]")
# How many extension alternatives a decoder says to know, and those that a walk tells.
KNOWN = re.compile(r"PassOverAlternative\(r, index, (\d+)\)")
EXTENSIONS = re.compile(r"if \(m\.isExtension\) \{\n(.*?)UnknownExtension", re.S)
CONDITION = re.compile(r"^\s*if \(m\.[\w.]+\) ?")
# An ENUMERATED whose extension bit is never read.
WITHOUT_EXTENSION_BIT = {"ScreeningIndicator"}
# Of these, alternatives that hold nothing are passed over like those that are not known.
ALL_SKIPPED = {"OpenLogicalChannel::ForwardLogicalChannelParameters::MultiplexParameters",
               "H2250LogicalChannelParameters::MediaPacketization"}
ASKS_WITHIN_ANOTHER = {"RegistrationConfirm::PreGrantedARQ"}
ASKED_BEFORE = {"PrivateMessage"}  # decoded only where its data has an octet
BOOKKEEPING = {"isExtended", "isExtension", "choiceTag", "userDataExtension"}


def is_flag(name):
    return re.fullmatch(r"has[A-Z]\w*|\w+Present", name) is not None


def records():
    """The members of each record, in order, by its qualified name."""
    found, name = {}, None
    for line in TABLE.read_text().splitlines():
        if title := re.match(r"### `([\w:]+)`", line):
            name = title[1]
            found[name] = []
        elif name and (row := re.match(r"\| \d+ \| \d+ \| `(\w+)`", line)):
            found[name].append(row[1])
    if not found:
        sys.exit(f"order: no record in {TABLE}")
    return found


def decoded(body):
    """The members that the lines of a decoder read, each where it comes first."""
    order = []
    for line in body.splitlines():
        line = CONDITION.sub("", line)
        if PRESENCE.search(line) or line.lstrip().startswith(("if ", "return ", "//", "switch", "case")):
            continue
        if member := re.search(r"\bm\.(\w+)", line):
            name = member[1]
            if name not in BOOKKEEPING and not is_flag(name) and name not in order:
                order.append(name)
    return order


def miscounted(lines):
    """The lines that read flags otherwise than all that follow one another at once."""
    for at, line in enumerate(lines):
        if run := RUN.search(line):
            takers = itertools.takewhile(lambda taker: taker and taker[2] == run[1], map(TAKEN.match, lines[at + 1:]))
            if sum(1 for _ in takers) != int(run[2]):
                yield at, line
        elif ALONE.match(line) and ALONE.match(lines[at + 1]) or TAKEN.match(line) and ALONE.match(lines[at + 1]):
            yield at + 1, lines[at + 1]


def lacking(name, status, record, body, members, extensions):
    """What a decoder of this record must do and does not."""
    whole = members is not None and name == record.rpartition("::")[2]
    if whole and "isExtended" in members and ".isExtended = " not in body and record not in WITHOUT_EXTENSION_BIT:
        yield "its extension bit is not read"
    unknown_passed = ("PerSkipExtensionAdditions(r);" in body
                      or "PerNoteUnknownAdditions(r, additions);" in body and "PerSkipUnknownAdditions(r);" in body
                      or "PerCountUnknownAdditions(r, additions);" in body and "PerSkipOpenTypes(r, unknown);" in body)
    if ".isExtended = " in body and not unknown_passed:
        yield "its unknown additions are not passed over"
    if "ReadChoice(m, r" in body and "m.isExtension)" not in body:
        yield "its extension alternatives are not told apart"
    known = KNOWN.search(body)
    if int(known[1] if known else 0) != extensions:
        yield f"knows {known and known[1]} extension alternatives, its walk {extensions}"
    if status == "Status" and whole:
        asks = body.startswith("  if (PerAtEnd(r)) return kExhausted;\n")
        if asks != ("::" not in record and record not in ASKED_BEFORE or record in ASKS_WITHIN_ANOTHER):
            yield "asks on entry" if asks else "does not ask on entry"


def in_order(names, members):
    places = [members.index(name) for name in names]
    return places == sorted(places)


def complaints(path, table, extensions):
    text = path.read_text()
    for at, line in miscounted(text.splitlines()):
        yield f"line {at + 1}: flags miscounted: {line.strip()}"
    family = NAMESPACE.search(text)[1]
    for status, name, record, body in FUNCTION.findall(text):
        members = table.get(f"{family}::{record}") or table.get(record)
        for lack in lacking(name, status, record, body, members, extensions.get((family, record), 0)):
            yield f"Decode{name}: {lack}"
        flags = PRESENCE.findall(body)
        if not members or "choiceTag" in members or not (flags or WHOLE.search(body)):
            continue
        wanted = [name for name in members if is_flag(name)]
        if flags != wanted:
            yield f"{record}: presence bits {flags}, of the record {wanted}"
        values = [name for name in decoded(body) if name in members]
        if not in_order(values, members):
            yield f"{record}: members {values}, of the record {[name for name in members if name in values]}"


def walks(lines):
    """The name of each record that has a walk, with the lines of it."""
    structs = []
    for at, line in enumerate(lines):
        indent = len(line) - len(line.lstrip())
        while structs and line.strip() and indent <= structs[-1][0]:
            structs.pop()
        if struct := STRUCT.match(line):
            structs.append((indent, struct[1]))
        elif line.lstrip().startswith("static void Walk("):
            yield "::".join(name for _, name in structs), lines[at + 1:lines.index(" " * indent + "}", at)]


def extensions_passed_over():
    """How many extension alternatives each CHOICE knows some of which hold nothing, by family and name."""
    found = {}
    for path in HEADERS:
        text = path.read_text()
        family = NAMESPACE.search(text)
        for record, lines in walks(text.splitlines()) if family else []:
            told = EXTENSIONS.search("\n".join(lines))
            if told and "v.Null(" in told[1] and record not in ALL_SKIPPED:
                found[family[1], record] = told[1].count("case ")
    return found


def complaints_of_walks(path, table):
    text = path.read_text()
    family = NAMESPACE.search(text)
    for record, lines in walks(text.splitlines()) if family else []:
        members = table.get(f"{family[1]}::{record}", [])
        told = [name for name in decoded("\n".join(lines)) if name in members]
        if "choiceTag" not in members and not in_order(told, members):
            yield f"{record}: walks {told}, of the record {[name for name in members if name in told]}"


def main():
    table = records()
    extensions = extensions_passed_over()
    found = [f"{path.relative_to(TOP)}: {what}" for path in SOURCES for what in complaints(path, table, extensions)]
    found += [f"{path.relative_to(TOP)}: {what}" for path in HEADERS for what in complaints_of_walks(path, table)]
    print("\n".join(found) if found else f"order: {len(SOURCES)} files of decoders keep to their records")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
