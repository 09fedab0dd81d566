#!/usr/bin/env python3
"""What is known of every record of the public headers, and the files that are made from it.

  scripts/records.py write     writes docs/records.md, docs/records.json, include/kelvra/names.h and kelvra_c.h
  scripts/records.py check     fails, with the difference, when one of them is not what it would write
  scripts/records.py asserts   prints C++ that asserts what docs/records.json says of the records, for any compiler
  scripts/records.py c-asserts prints C++ that asserts that the records of kelvra_c.h are those of C++
  scripts/records.py list      prints C++ that lists the records of docs/records.json, for any compiler
  scripts/records.py names     prints C++ that lists the enumerators of names.h with what the ASN.1 calls them

Clang reports the records and their members, and as the compiler for Windows their places. scripts/freestanding/
stands in for the C library of Windows, which need not be on this machine. What the descriptions say is printed by
scripts/describe_records.cpp.
"""
import collections
import difflib
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field

import record_headers

TOP = pathlib.Path(__file__).resolve().parent.parent
TABLE = TOP / "docs" / "records.md"
MODEL = TOP / "docs" / "records.json"
NAMES = TOP / "include" / "kelvra" / "names.h"
C_HEADER = TOP / "include" / "kelvra" / "kelvra_c.h"
# The headers with the records, which do not include generated ones.
HEADERS = ["h225/call/q931_message.h", "h225/ras/ras_message.h", "h245/messages/h245_message.h"]
INCLUDES = "".join(f'#include "kelvra/{header}"\n' for header in HEADERS)
CLANG = ["clang++", "-std=c++20", "-I", TOP / "include", "-x", "c++"]
WINDOWS = ["-fms-extensions", "-fms-compatibility", "-ffreestanding", "-isystem", TOP / "scripts" / "freestanding"]
TARGETS = {32: "i686-pc-windows-msvc", 64: "x86_64-pc-windows-msvc"}
FAMILIES = {"": "Strings, object identifiers and CHOICEs of NULLs", "h225": "H.225.0 and Q.931", "h235": "H.235",
            "h245": "H.245"}
# Template instances, by the names used elsewhere.
INSTANCES = "Of this layout:"
UNION = "union"
# The member that a Q.931 information element fills, if its name differs.
ELEMENT_MEMBERS = {"cause": "causeValue", "signal": "signalValue"}

INTRODUCTION = """# Records

The place of every member of every record in the 32-bit library, for callers in other languages. Offsets
and widths count octets. Records are packed: nothing lies between two members, and none is aligned. Numbers
and pointers have the byte order of the machine. [records.json](records.json) says the same to programs, for 64 bits
too, and when each member is present.

- The three records that the exports take are `h225::RasMessageRecord`, `h225::Q931MessageRecord` and
  `h245::H245MessageRecord`.
- A pointer (`*`) has 4 octets. It leads to one record or to as many elements as the count before it says,
  back to back.
- The rows below a `union`, marked `·`, are its alternatives; `choiceTag` and `isExtension` say which one holds.
- *Root* lists the tags of a CHOICE where `isExtension` is 0 or missing, *Extension* those where it is not. An
  alternative that is no member of the union is NULL or passed over. C++ programs have names for them in
  `kelvra/names.h`, C programs in `kelvra/kelvra_c.h`.
- `A::B` is a record that only `A` uses. A type of another family is named with that family.

Made by `make records` from the public headers.
"""


@dataclass
class Member:
    name: str
    type: str  # as the section of its family names it
    full_type: str = ""  # within the outermost namespace
    alternatives: list = field(default_factory=list)  # of an anonymous union
    places: dict = field(default_factory=dict)  # offset and width, by the bits of a pointer


@dataclass
class Record:
    name: str  # in the outermost namespace, like all names here
    members: list
    template: str = ""
    widths: dict = field(default_factory=dict)  # by the bits of a pointer


def family_of(name):
    first = name.split("::")[0]
    return first if first in FAMILIES else ""


def without_namespace(name):
    return name.replace("kelvra::", "")


def type_text(text, family):
    """A type as named in the section of the family."""
    def shorten(match):
        parts = match.group(0).split("::")
        if parts[0] == "kelvra":
            del parts[0]
        foreign = parts[0] in FAMILIES and parts[0] != family
        return f"{parts[0]}::{parts[-1]}" if foreign else parts[-1]
    return re.sub(r"\w+(::\w+)+", shorten, text).replace(" *", "*").replace(" [", "[")


class Headers:
    """The packed records and enumerations that Clang finds in the public headers."""

    def __init__(self):
        self.scan_all("")
        # A type that is only pointed to has no members until its size is needed.
        self.scan_all("".join(f"static_assert(sizeof(kelvra::{names[0]}) > 0);\n" for names in self.names.values()))

    def scan_all(self, source):
        self.records = []
        self.enumerations = {}  # values by name
        self.names = {}  # of template instances
        self.scan(json.loads(clang([*target(32), "-Xclang", "-ast-dump=json", "-fsyntax-only"], source)), [])

    def scan(self, node, scope):
        for child in node.get("inner", []):
            kind = child["kind"]
            name = child.get("name")
            if kind == "NamespaceDecl":
                self.scan(child, scope + [name])
            elif kind == "TypeAliasDecl" and "<" in child["type"].get("desugaredQualType", ""):
                instance = without_namespace(child["type"]["desugaredQualType"])
                self.names.setdefault(instance, []).append("::".join(scope[1:] + [name]))
            elif kind == "ClassTemplateDecl":
                for instance in child["inner"]:
                    if instance["kind"] == "ClassTemplateSpecializationDecl":
                        self.keep(instance, "::".join(scope[1:] + [name]))
            elif kind == "CXXRecordDecl" and child.get("completeDefinition") and name:
                self.keep(child, "::".join(scope[1:] + [name]))
                self.scan(child, scope + [name])
            elif kind == "EnumDecl" and child.get("inner") and len(scope) > 1 and scope[1] in FAMILIES:
                self.enumerations["::".join(scope[1:] + ([] if name == "Value" else [name]))] = enumerators(child)

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
                found.append(Member("", UNION, alternatives=union))
            elif child["kind"] == "FieldDecl":
                written = child["type"]["qualType"]
                full = written if re.match(r"u?int\d+_t", written) else child["type"].get("desugaredQualType", written)
                found.append(Member(child["name"], type_text(written, family), without_namespace(full)))
        return found

    def public_name(self, name):
        return self.names[name][0] if name in self.names else name


def enumerators(node):
    constants = [child for child in node["inner"] if child["kind"] == "EnumConstantDecl"]
    return {constant["name"]: int(value_in(constant)) for constant in constants}


def value_in(node):
    return node["value"] if "value" in node else value_in(node["inner"][0])


def template_arguments(node):
    arguments = [child for child in node["inner"] if child["kind"] == "TemplateArgument"]
    texts = [child["type"]["qualType"] if "type" in child else str(child["value"]) for child in arguments]
    return without_namespace(f"<{', '.join(texts)}>") if texts else ""


# --- Clang ---

def target(bits):
    return [f"--target={TARGETS[bits]}", *WINDOWS]


def clang(arguments, source, output="-"):
    if shutil.which(CLANG[0]) is None:
        sys.exit(f"records: no {CLANG[0]}; scripts/setup.sh test installs it")
    run = subprocess.run([*CLANG, *arguments, "-o", output, "-"], input=INCLUDES + source, stdout=subprocess.PIPE,
                         text=True)
    if run.returncode != 0:
        sys.exit("records: Clang does not take the public headers")
    return run.stdout


def leaves(members):
    for member in members:
        if member.alternatives:
            yield from leaves(member.alternatives)
        else:
            yield member


def lay_out(records, bits):
    """Fills in offsets and widths, which Clang emits as constants of an array."""
    values = []
    for record in records:
        values.append(f"sizeof({record.name})")
        for member in leaves(record.members):
            values.append(f"__builtin_offsetof({record.name}, {member.name}), sizeof({record.name}::{member.name})")
    source = "namespace kelvra { extern const unsigned kLayout[] = {" + ",\n".join(values) + "}; }\n"
    constants = re.search(r"constant \[\d+ x i32\] \[(.*)\]", clang([*target(bits), "-S", "-emit-llvm"], source)).group(1)
    numbers = iter(int(number) for number in re.findall(r"i32 (\d+)", constants))
    for record in records:
        record.widths[bits] = next(numbers)
        for member in leaves(record.members):
            member.places[bits] = (next(numbers), next(numbers))
        lay_out_unions(record.members, bits)


def lay_out_unions(members, bits):
    for member in members:
        if member.alternatives:
            lay_out_unions(member.alternatives, bits)
            widths = [alternative.places[bits][1] for alternative in member.alternatives]
            member.places[bits] = (member.alternatives[0].places[bits][0], max(widths))


def descriptions(records):
    """The description of each record, by name. Positions are offsets at 64 bits."""
    listing = "".join(f"LIST_RECORD({name})\n" for name in records)
    with tempfile.TemporaryDirectory() as folder:
        listed, program = pathlib.Path(folder, "list.inc"), pathlib.Path(folder, "describe")
        listed.write_text(listing, encoding="utf-8")
        source = (TOP / "scripts" / "describe_records.cpp").read_text(encoding="utf-8")
        clang([f'-DRECORD_LIST="{listed}"', "-O0"], source, program)
        lines = subprocess.run([program], stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
    return {line["record"]: line for line in map(json.loads, lines)}


# --- The model: what docs/records.json holds ---

def model():
    headers = Headers()
    for bits in TARGETS:
        lay_out(headers.records, bits)
    described = descriptions([headers.public_name(record.name) for record in headers.records])
    records = [entry_of(headers, record, described[headers.public_name(record.name)], headers.enumerations)
               for record in headers.records]
    return headers, {"format": 1,
                     "records": sorted(records, key=lambda entry: entry["name"].lower()),
                     "enumerations": [{"name": name, "values": [{"name": key, "value": value}
                                                                for key, value in values.items()]}
                                      for name, values in sorted(headers.enumerations.items())]}


def entry_of(headers, record, description, enumerations):
    entry = {"name": headers.public_name(record.name), "form": description["form"],
             "width32": record.widths[32], "width64": record.widths[64]}
    arguments = re.search(r"<(.*)>", record.name)
    if description["form"] == "nulls":
        entry["names"] = arguments.group(1)
    if description["form"] in ("choice", "nulls"):
        entry["alternatives"] = []
    if description["form"] == "enumerated":
        entry["values"] = [{"name": value["name"], "value": value["tag"]} for value in description["components"]]
    entry["members"] = [fields for member in record.members for fields in member_fields(headers, member)]
    by_offset = collections.defaultdict(list)
    for fields in entry["members"]:
        by_offset[fields["offset64"]].append(fields)
    if description["form"] == "choice":
        add_alternatives(entry, description, by_offset)
    elif description["form"] == "nulls":
        entry["alternatives"] = [alternative_of(component) for component in description["components"]]
    elif description["form"] == "sequence":
        add_components(description, by_offset)
    elif "presenceMask" in by_name(entry):
        add_elements(entry, enumerations["h225::Q931Presence"])
    else:
        add_count(entry)
    return entry


def by_name(entry):
    return {fields["name"]: fields for fields in entry["members"]}


def member_fields(headers, member, in_union=False):
    if member.alternatives:
        for alternative in member.alternatives:
            yield from member_fields(headers, alternative, True)
        return
    pointed = member.full_type.endswith(" *")
    name = member.full_type.removesuffix(" *")
    fields = {"name": member.name, "type": headers.public_name(name) + ("*" if pointed else "")}
    for bits, (offset, width) in member.places.items():
        fields[f"offset{bits}"], fields[f"width{bits}"] = offset, width
    if in_union:
        fields["union"] = True
    yield fields


def alternative_of(component):
    return {"name": component["name"], "tag": component["tag"], "extension": component["extension"]}


def add_alternatives(entry, description, by_offset):
    """Union members share one position, in the order of the alternatives that have a member."""
    places = collections.deque(fields for fields in entry["members"] if fields.get("union"))
    for component in description["components"]:
        alternative = alternative_of(component)
        entry["alternatives"].append(alternative)
        if "at" not in component:
            continue
        while places and places[0]["name"] in ("empty", "reserved"):
            places.popleft()
        # A union of one member may be written without `union`.
        fields = places.popleft() if places else by_offset[component["at"]][0]
        alternative["member"] = fields["name"]
        fields["asn1"] = component["name"]
        fields["present"] = {"tag": component["tag"], "extension": component["extension"]}
        add_details(fields, component, by_offset)


def add_components(description, by_offset):
    for component in description["components"]:
        fields = by_offset[component["at"]][0]
        fields["asn1"] = component["name"]
        if "flag" in component:
            fields["present"] = {"flag": by_offset[component["flag"]][0]["name"]}
        add_details(fields, component, by_offset)


def add_details(fields, component, by_offset):
    for role in ("count", "extended"):
        if role in component and component[role] in by_offset:
            fields[role] = by_offset[component[role]][0]["name"]
    for role in ("notation", "uncounted"):
        if role in component:
            fields[role] = component[role]


def add_count(entry):
    """Adds the form of a string or a list, which is a count and a pointer."""
    if len(entry["members"]) == 2 and entry["members"][1]["type"].endswith("*"):
        entry["form"] = "list" if entry["members"][1]["name"] == "elements" else "string"
        entry["members"][1]["count"] = entry["members"][0]["name"]


def add_elements(entry, presence):
    members = by_name(entry)
    for name, bit in presence.items():
        element = name[1:].removesuffix("Present")
        element = element[0].lower() + element[1:]
        member = ELEMENT_MEMBERS.get(element, element)
        for fields in (members.get(member), members.get(member + "Length")):
            if fields is not None:
                fields["present"] = {"mask": "presenceMask", "bit": bit}
        if member + "Length" in members:
            members[member]["count"] = member + "Length"


def json_text(content):
    """One line per member, alternative and value, so that a difference shows what changed."""
    def line(value):
        return json.dumps(value, ensure_ascii=False)

    def block(entry):
        parts = []
        for key, value in entry.items():
            if isinstance(value, list) and value:
                items = ",\n".join(f"    {line(item)}" for item in value)
                parts.append(f'   "{key}": [\n{items}]')
            else:
                parts.append(f'   "{key}": {line(value)}')
        return "  {\n" + ",\n".join(parts) + "}"

    lists = [f' "{key}": [\n' + ",\n".join(map(block, content[key])) + "]" for key in ("records", "enumerations")]
    return "{\n" + ",\n".join([f' "format": {content["format"]}', *lists]) + "\n}\n"


# --- docs/records.md ---

def rows(members, indent=""):
    for member in members:
        name = f"`{member.name}`" if member.name else ""
        offset, width = member.places[32]
        yield f"| {offset} | {width} | {indent}{name} | `{member.type}` |"
        yield from rows(member.alternatives, indent + "· ")


def wrapped(words, indent=""):
    lines = [""]
    for word in words:
        if len(lines[-1]) + 1 + len(word) > 110:
            lines.append(indent)
        lines[-1] += word if not lines[-1].strip() else " " + word
    return "\n".join(lines)


def tags_text(entry):
    """The tags of a CHOICE, or the values of an ENUMERATED."""
    def listed(title, values):
        names = ", ".join(f"{number}\u00a0`{name}`" for number, name in values)
        return f"{title}: {names}." if names else ""
    if "values" in entry:
        return listed("Values", [(value["value"], value["name"]) for value in entry["values"]])
    parts = [listed(title, [(alternative["tag"], alternative["name"]) for alternative in entry["alternatives"]
                            if alternative["extension"] == extension])
             for title, extension in (("Root", False), ("Extension", True))]
    return " ".join(filter(None, parts))


def sections(headers, entries, family):
    """Heading and names of each layout of the family. Matching template instances share one."""
    layouts = {}
    for record in headers.records:
        if family_of(record.name) == family:
            text = "| Offset | Width | Member | Type |\n| ---: | ---: | --- | --- |\n" + "\n".join(rows(record.members))
            heading = f"### `{record.template or record.name}`: {record.widths[32]} octets"
            layouts.setdefault((heading, text), []).append(entries[headers.public_name(record.name)])
    for (heading, text), instances in sorted(layouts.items(), key=lambda item: (item[0][0].lower(), item[0][1])):
        yield heading
        isInstance = not heading.startswith(f"### `{instances[0]['name']}`")
        if isInstance:
            items = []
            for entry in sorted(instances, key=lambda entry: entry["name"].lower()):
                tags = tags_text(entry) if entry["form"] == "nulls" else ""
                items.append(wrapped([f"- `{entry['name']}`" + (":" if tags else ""), *tags.split(" ")], "  ").rstrip())
            yield INSTANCES + "\n\n" + "\n".join(items)
        yield text
        if not isInstance and instances[0]["form"] in ("choice", "enumerated"):
            yield wrapped(tags_text(instances[0]).split(" "))


def enumeration_sections(content):
    for enumeration in content["enumerations"]:
        yield f"### `{enumeration['name']}`"
        values = "\n".join(f"| {value['value']:#x} | {value['value']} | `{value['name']}` |"
                           for value in enumeration["values"])
        yield "| Value | Decimal | Name |\n| ---: | ---: | --- |\n" + values


def table(headers, content):
    entries = {entry["name"]: entry for entry in content["records"]}
    blocks = [INTRODUCTION.strip()]
    for family, title in FAMILIES.items():
        blocks += [f"## {title}", *sections(headers, entries, family)]
    blocks += ["## Values of other members", *enumeration_sections(content)]
    return "\n\n".join(blocks).replace("\u00a0", " ") + "\n"


# --- Output made from docs/records.json ---

def asserts(content):
    """C++ from the model alone, so that it also works for compilers that cannot report layouts."""
    def either(fields, what):
        return f"(kIsSmall ? {fields[what + '32']} : {fields[what + '64']})"
    lines = ["#include <stddef.h>", '#include "kelvra/kelvra.h"', "namespace kelvra {",
             "constexpr bool kIsSmall = sizeof(void*) == 4;"]
    for entry in content["records"]:
        record = entry["name"]
        lines.append(f"static_assert(sizeof({record}) == {either(entry, 'width')});")
        for fields in entry["members"]:
            name = fields["name"]
            lines.append(f"static_assert(offsetof({record}, {name}) == {either(fields, 'offset')});")
            lines.append(f"static_assert(sizeof({record}::{name}) == {either(fields, 'width')});")
    return "\n".join(lines + ["}  // namespace kelvra"]) + "\n"


def listing(content):
    """C++ that calls LIST_RECORD(record, alternatives...) for each record, with the names of its union members."""
    lines = ["// Made by scripts/records.py from docs/records.json."]
    for entry in content["records"]:
        alternatives = ", ".join(f'"{fields["name"]}"' for fields in entry["members"] if fields.get("union"))
        lines.append(f"LIST_RECORD({', '.join(filter(None, [entry['name'], alternatives]))})")
    return "\n".join(lines) + "\n"


def made_files():
    headers, content = model()
    return {TABLE: table(headers, content), MODEL: json_text(content), NAMES: record_headers.names_header(content),
            C_HEADER: record_headers.c_header(content)}


def check():
    differing = 0
    for path, made in made_files().items():
        carried = path.read_text(encoding="utf-8")
        if carried == made:
            print(f"records: {path.name} is what the headers say, {made.count(chr(10))} lines")
            continue
        differing += 1
        name = str(path.relative_to(TOP))
        sys.stderr.writelines(
            difflib.unified_diff(carried.splitlines(True), made.splitlines(True), name, "the headers", n=8))
        print(f"records: the headers differ from {name}; `make records` writes it anew", file=sys.stderr)
    return 1 if differing else 0


def main():
    makers = {"asserts": asserts, "c-asserts": record_headers.c_asserts, "list": listing,
              "names": record_headers.name_list}
    if sys.argv[1:] == ["write"]:
        for path, text in made_files().items():
            path.write_text(text, encoding="utf-8")
    elif sys.argv[1:] == ["check"]:
        return check()
    elif len(sys.argv) == 2 and sys.argv[1] in makers:
        sys.stdout.write(makers[sys.argv[1]](json.loads(MODEL.read_text(encoding="utf-8"))))
    else:
        print(__doc__, file=sys.stderr)
        return 2
    return 0


if __name__ == "__main__":
    sys.exit(main())
