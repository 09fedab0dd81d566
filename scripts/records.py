#!/usr/bin/env python3
"""The layout of every record of the public headers where pointers have 32 bits.

  scripts/records.py write     writes docs/records.md
  scripts/records.py check     fails, with the difference, when docs/records.md is not what it would write
  scripts/records.py asserts   prints C++ that asserts what docs/records.md says, for any 32-bit compiler
  scripts/records.py list      prints C++ that lists the records of docs/records.md, for any compiler

Clang tells the records and their members, and as the compiler for Windows x86 their places. scripts/freestanding/
stands in for the C library of Windows, which need not be on this machine.
"""
import difflib
import json
import pathlib
import re
import shutil
import subprocess
import sys
from dataclasses import dataclass, field

TOP = pathlib.Path(__file__).resolve().parent.parent
TABLE = TOP / "docs" / "records.md"
CLANG = ["clang++", "--target=i686-pc-windows-msvc", "-fms-extensions", "-fms-compatibility", "-ffreestanding",
         "-std=c++20", "-I", TOP / "include", "-isystem", TOP / "scripts" / "freestanding", "-x", "c++"]
FAMILIES = {"": "Strings, object identifiers and CHOICEs of NULLs", "h225": "H.225.0 and Q.931", "h235": "H.235",
            "h245": "H.245"}
# Instances of a template, by the names that they have elsewhere.
INSTANCES = "Of this layout:"
UNION = "union"

INTRODUCTION = """# Records

The place of every member of every record in the 32-bit library, for callers in other languages. Offsets
and widths count octets. Records are packed: nothing lies between two members, and none is aligned. Numbers
and pointers have the byte order of the machine.

- The three records that the exports take are `h225::RasMessageRecord`, `h225::Q931MessageRecord` and
  `h245::H245MessageRecord`.
- A pointer (`*`) has 4 octets. It leads to one record or to as many elements as the count before it says,
  back to back.
- The rows below a `union`, marked `·`, are its alternatives; one of them holds, as `choiceTag` tells.
- `A::B` is a record that only `A` uses. A type of another family is named with that family.

Made by `make records` from the public headers.
"""


@dataclass
class Member:
    name: str
    type: str
    alternatives: list = field(default_factory=list)  # of an anonymous union
    offset: int = 0
    width: int = 0


@dataclass
class Record:
    name: str  # within the outermost namespace, as all names here
    members: list
    template: str = ""
    width: int = 0


def family_of(name):
    first = name.split("::")[0]
    return first if first in FAMILIES else ""


def type_text(text, family):
    """A type as a reader of the family's section knows it."""
    def shorten(match):
        parts = match.group(0).split("::")
        if parts[0] == "kelvra":
            del parts[0]
        foreign = parts[0] in FAMILIES and parts[0] != family
        return f"{parts[0]}::{parts[-1]}" if foreign else parts[-1]
    return re.sub(r"\w+(::\w+)+", shorten, text).replace(" *", "*").replace(" [", "[")


class Headers:
    """The packed records that Clang finds in the public headers."""

    def __init__(self):
        self.records = []
        self.names = {}  # of instances of templates
        self.scan(json.loads(clang(["-Xclang", "-ast-dump=json", "-fsyntax-only"], "")), [])

    def scan(self, node, scope):
        for child in node.get("inner", []):
            kind = child["kind"]
            name = child.get("name")
            if kind == "NamespaceDecl":
                self.scan(child, scope + [name])
            elif kind == "TypeAliasDecl" and "<" in child["type"].get("desugaredQualType", ""):
                instance = child["type"]["desugaredQualType"].replace("kelvra::", "")
                self.names.setdefault(instance, []).append("::".join(scope[1:] + [name]))
            elif kind == "ClassTemplateDecl":
                for instance in child["inner"]:
                    if instance["kind"] == "ClassTemplateSpecializationDecl":
                        self.keep(instance, "::".join(scope[1:] + [name]))
            elif kind == "CXXRecordDecl" and child.get("completeDefinition") and name:
                self.keep(child, "::".join(scope[1:] + [name]))
                self.scan(child, scope + [name])

    def keep(self, node, name):
        packed = any(child["kind"] == "MaxFieldAlignmentAttr" for child in node.get("inner", []))
        members = self.members(node, family_of(name)) if packed else []
        if members:
            arguments = template_arguments(node)
            self.records.append(Record(name + arguments, members, name if arguments else ""))

    def members(self, node, family):
        found, union = [], None
        for child in node["inner"]:
            if child["kind"] == "CXXRecordDecl" and "name" not in child and child.get("completeDefinition"):
                union = self.members(child, family)
            elif child["kind"] == "FieldDecl" and "name" not in child:
                found.append(Member("", UNION, union))
            elif child["kind"] == "FieldDecl":
                found.append(Member(child["name"], type_text(child["type"]["qualType"], family)))
        return found


def template_arguments(node):
    arguments = [child for child in node["inner"] if child["kind"] == "TemplateArgument"]
    texts = [child["type"]["qualType"] if "type" in child else str(child["value"]) for child in arguments]
    return f"<{', '.join(texts)}>".replace("kelvra::", "") if texts else ""


def clang(arguments, source):
    source = '#include "kelvra/kelvra.h"\n' + source
    if shutil.which(CLANG[0]) is None:
        sys.exit(f"records: no {CLANG[0]}; scripts/setup.sh test installs it")
    run = subprocess.run(CLANG + arguments + ["-o", "-", "-"], input=source, stdout=subprocess.PIPE, text=True)
    if run.returncode != 0:
        sys.exit("records: Clang does not take the public headers")
    return run.stdout


def leaves(members):
    for member in members:
        if member.alternatives:
            yield from leaves(member.alternatives)
        else:
            yield member


def lay_out(records):
    """Fills in offsets and widths, which Clang leaves as constants of an array."""
    values = []
    for record in records:
        values.append(f"sizeof({record.name})")
        for member in leaves(record.members):
            values.append(f"__builtin_offsetof({record.name}, {member.name}), sizeof({record.name}::{member.name})")
    source = "namespace kelvra { extern const unsigned kLayout[] = {" + ",\n".join(values) + "}; }\n"
    constants = re.search(r"constant \[\d+ x i32\] \[(.*)\]", clang(["-S", "-emit-llvm"], source)).group(1)
    numbers = iter(int(number) for number in re.findall(r"i32 (\d+)", constants))
    for record in records:
        record.width = next(numbers)
        for member in leaves(record.members):
            member.offset, member.width = next(numbers), next(numbers)
        lay_out_unions(record.members)


def lay_out_unions(members):
    for member in members:
        if member.alternatives:
            lay_out_unions(member.alternatives)
            member.offset = member.alternatives[0].offset
            member.width = max(alternative.width for alternative in member.alternatives)


def rows(members, indent=""):
    for member in members:
        name = f"`{member.name}`" if member.name else ""
        yield f"| {member.offset} | {member.width} | {indent}{name} | `{member.type}` |"
        yield from rows(member.alternatives, indent + "· ")


def sections(headers, family):
    """Heading and names of each layout of the family. Instances of a template that agree share one."""
    layouts = {}
    for record in headers.records:
        if family_of(record.name) == family:
            text = "| Offset | Width | Member | Type |\n| ---: | ---: | --- | --- |\n" + "\n".join(rows(record.members))
            heading = f"### `{record.template or record.name}`: {record.width} octets"
            instances = headers.names.get(record.name, [record.name]) if record.template else []
            layouts.setdefault((heading, text), []).extend(instances)
    for (heading, text), instances in sorted(layouts.items(), key=lambda item: (item[0][0].lower(), item[0][1])):
        yield heading
        if instances:
            names = ",\n".join(f"`{name}`" for name in sorted(set(instances), key=str.lower))
            yield f"{INSTANCES}\n{names}."
        yield text


def table():
    headers = Headers()
    lay_out(headers.records)
    blocks = [INTRODUCTION.strip()]
    for family, title in FAMILIES.items():
        blocks += [f"## {title}", *sections(headers, family)]
    return "\n\n".join(blocks) + "\n"


def records_of(text):
    """Name, width and rows (offset, width, mark of an alternative, name) of each record in the table."""
    for section in text.split("\n### ")[1:]:
        name, width = re.match(r"`(.+?)`: (\d+) octets", section).groups()
        instances = re.search(INSTANCES + r"\n(.*?)\.\n", section, re.DOTALL)
        members = re.findall(r"^\| (\d+) \| (\d+) \| ([· ]*)`(\w+)`", section, re.MULTILINE)
        for record in re.findall(r"`(.+?)`", instances.group(1)) if instances else [name]:
            yield record, width, members


def asserts(text):
    """C++ from the table alone, so that it holds for compilers which cannot tell layouts."""
    lines = ["#include <stddef.h>", '#include "kelvra/kelvra.h"', "namespace kelvra {"]
    for record, width, members in records_of(text):
        lines.append(f"static_assert(sizeof({record}) == {width});")
        for offset, octets, _, member in members:
            lines.append(f"static_assert(offsetof({record}, {member}) == {offset});")
            lines.append(f"static_assert(sizeof({record}::{member}) == {octets});")
    return "\n".join(lines + ["}  // namespace kelvra"]) + "\n"


def listing(text):
    """C++ that calls LIST_RECORD(record, alternatives...) for each record, with the names of what is in its union."""
    lines = ["// Made by scripts/records.py from docs/records.md."]
    for record, _, members in records_of(text):
        alternatives = ", ".join(f'"{member}"' for _, _, mark, member in members if mark)
        lines.append(f"LIST_RECORD({', '.join(filter(None, [record, alternatives]))})")
    return "\n".join(lines) + "\n"


def check():
    carried, made = TABLE.read_text(encoding="utf-8"), table()
    if carried == made:
        print(f"records: {made.count(chr(10) + '### ')} records are laid out as {TABLE.name} says")
        return 0
    name = str(TABLE.relative_to(TOP))
    sys.stderr.writelines(difflib.unified_diff(carried.splitlines(True), made.splitlines(True), name, "the headers", n=8))
    print(f"records: the headers differ from {name}; `make records` writes it anew", file=sys.stderr)
    return 1


def main():
    if sys.argv[1:] == ["write"]:
        TABLE.write_text(table(), encoding="utf-8")
    elif sys.argv[1:] == ["check"]:
        return check()
    elif sys.argv[1:] == ["asserts"]:
        sys.stdout.write(asserts(TABLE.read_text(encoding="utf-8")))
    elif sys.argv[1:] == ["list"]:
        sys.stdout.write(listing(TABLE.read_text(encoding="utf-8")))
    else:
        print(__doc__, file=sys.stderr)
        return 2
    return 0


if __name__ == "__main__":
    sys.exit(main())
