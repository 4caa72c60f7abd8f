#!/usr/bin/env python3
"""Holds the phone's library against what a device needs of it: check_dylib.py LIBRARY ALLOWED_IMPORTS.

Prints every fault in a sentence and fails if there is one. What the file says is read with llvm-objdump and, where that
says nothing, by hand: nothing here shares code with what builds, signs or loads the library.
"""

import hashlib
import re
import struct
import subprocess
import sys
import tempfile

FRAMEWORKS = "/System/Library/Frameworks"

# Install name: (compatibility version, weak). A greater version than the device's makes its loader refuse; what came
# with iOS 8 must be weak, so that iOS 7 loads the file.
EVERYWHERE = {
    f"{FRAMEWORKS}/Foundation.framework/Foundation": ("300.0.0", False),
    f"{FRAMEWORKS}/CoreFoundation.framework/CoreFoundation": ("150.0.0", False),
    f"{FRAMEWORKS}/UIKit.framework/UIKit": ("1.0.0", False),
    f"{FRAMEWORKS}/Photos.framework/Photos": ("1.0.0", True),
    f"{FRAMEWORKS}/LocalAuthentication.framework/LocalAuthentication": ("1.0.0", True),
    "/usr/lib/libobjc.A.dylib": ("1.0.0", False),
    "/usr/lib/libSystem.B.dylib": ("1.0.0", False),
}
LIBRARY = {
    "file type": "6",
    "largest size": 120 * 1024,
    "identifier": "com.nrv.rollkeeper",
    "install name": ["/Library/MobileSubstrate/DynamicLibraries/rollkeeper.dylib"],
    "initialisers": 2,
    "dependencies": EVERYWHERE
    | {
        "/System/Library/PrivateFrameworks/AppSupport.framework/AppSupport": ("1.0.0", False),
        "/Library/Frameworks/CydiaSubstrate.framework/CydiaSubstrate": ("0.0.0", False),
        "/usr/lib/librocketbootstrap.dylib": ("0.0.0", False),
    },
}
# Those that every system since iOS 7 knows and that a library of ours has a use for.
COMMANDS = {
    *("LC_SEGMENT_64", "LC_DYLD_INFO_ONLY", "LC_SYMTAB", "LC_DYSYMTAB", "LC_ID_DYLIB", "LC_UUID", "LC_LOAD_DYLIB"),
    *("LC_VERSION_MIN_IPHONEOS", "LC_LOAD_WEAK_DYLIB", "LC_FUNCTION_STARTS", "LC_DATA_IN_CODE", "LC_CODE_SIGNATURE"),
}
INITIALISERS = 0x09
# Content, zeros, literals, pointers to imports and stubs for them: no terminators, no thread-local variables.
SECTION_TYPES = {0x00, 0x01, 0x02, 0x03, 0x04, 0x0E, 0x06, 0x07, 0x08, INITIALISERS}
# A signature's slots: the requirements, of which there are none, and a code directory for each hash and its number.
REQUIREMENTS_SLOT, REQUIREMENTS = 2, struct.pack(">3I", 0xFADE0C01, 12, 0)
DIRECTORIES = {0: ("sha1", 1), 0x1000: ("sha256", 2)}
# A code directory up to its identifier.
DIRECTORY = struct.Struct(">9I4B4I4Q")
FIELDS = (
    *("magic", "length", "version", "flags", "hash offset", "identifier offset", "special count", "page count"),
    *("code limit", "hash size", "hash", "platform", "page size", "spare", "scatter", "team", "second spare"),
    *("64-bit code limit", "text offset", "text size", "text flags"),
)


class Damaged(Exception):
    """The file cannot be read as what it claims to be."""


def output_of(*command):
    """What a tool says about a file; Damaged when it cannot read it."""
    result = subprocess.run(command, capture_output=True, check=False)
    if result.returncode != 0:
        raise Damaged(result.stderr.decode().strip())
    return result.stdout


class Image:
    TABLES = ("--private-headers", "--bind", "--lazy-bind", "--weak-bind", "--exports-trie", "--unwind-info")

    def __init__(self, data):
        with tempfile.NamedTemporaryFile() as file:
            file.write(data)
            file.flush()
            text = output_of("llvm-objdump-19", "--macho", "--non-verbose", *self.TABLES, file.name).decode()
        self.data = data
        headers, *blocks = re.split(r"^(?=Load command|Section\n)", text, flags=re.M)
        self.header = dict(zip(*(line.split() for line in headers.splitlines()[-2:])))
        fields = [dict(re.findall(r"^ *([a-z]\w*(?: version)?) (\S+)", block, re.M)) for block in blocks]
        self.commands = [each for each in fields if "cmd" in each]
        self.sections = [each for each in fields if "sectname" in each]
        self.bind_rows = re.findall(r"^__.*", text, re.M)
        self.binds = re.findall(r"^__\w+ +\S+ +0x\w+ (?:pointer +-?\d+ )? *(\S+) +(\S+)", text, re.M)
        self.exports = re.findall(r"^0x\w+ +(\S+)$", text, re.M)
        self.unwinding = re.findall(r"function offset=(\w+), encoding(?:\[\d+\])?=(\w+)", text)

    def of(self, *kinds):
        return [command for command in self.commands if command["cmd"] in kinds]


def header_faults(image, expected):
    wanted = {"cputype": str(0x0100000C), "cpusubtype": "0", "filetype": expected["file type"]}
    for field, value in wanted.items():
        if image.header[field] != value:
            yield f"its {field} is {image.header[field]}, not {value}"
    if not int(image.header["flags"], 16) & 0x80:
        yield "its imports do not name their libraries"
    if len(image.data) > expected["largest size"]:
        yield f"it has {len(image.data)} bytes, more than {expected['largest size']}"


def command_faults(image, expected):
    for kind in sorted({command["cmd"] for command in image.commands} - COMMANDS):
        yield f"it has {kind}"
    names = [command["name"] for command in image.of("LC_ID_DYLIB")]
    if names != expected["install name"]:
        yield f"its install name is {names}"
    minimum = [command["version"] for command in image.of("LC_VERSION_MIN_IPHONEOS")]
    if minimum != ["7.0"]:
        yield f"its minimum iOS version is {minimum}, not 7.0"
    for segment in image.of("LC_SEGMENT_64"):
        if int(segment["vmaddr"], 16) % 0x4000 or int(segment["initprot"], 16) & 6 == 6:
            yield f"the segment {segment['segname']} is not on 16 KiB pages, or can be written and executed"


def dependency_faults(image, expected):
    found = {
        command["name"]: (command["compatibility version"], command["cmd"] == "LC_LOAD_WEAK_DYLIB")
        for command in image.of("LC_LOAD_DYLIB", "LC_LOAD_WEAK_DYLIB")
    }
    for name in sorted(found.keys() | expected["dependencies"].keys()):
        wanted = expected["dependencies"].get(name)
        if found.get(name) != wanted:
            yield f"it links {name} as (compatibility version, weak) {found.get(name)}, not {wanted}"


def import_faults(image, expected, allowed):
    names = {name.rsplit("/", 1)[-1].split(".")[0]: name for name in expected["dependencies"]}
    imports = {(symbol, names.get(library, library)) for library, symbol in image.binds}
    for symbol, origin in sorted(imports - allowed):
        yield f"it imports {symbol} from {origin}, which the list does not allow"
    for symbol, origin in sorted(allowed - imports):
        yield f"the list allows {symbol} from {origin}, which it does not import"
    for symbol in image.exports:
        yield f"it exports {symbol}"
    if len(image.bind_rows) != len(image.binds):
        yield "it has weak definitions"


def section_faults(image, expected):
    initialisers = 0
    for section in image.sections:
        kind = int(section["flags"], 16) & 0xFF
        if kind not in SECTION_TYPES or section["sectname"].startswith("__objc_"):
            yield f"it has the section {section['sectname']} of type {kind:#x}"
        if kind == INITIALISERS:
            initialisers += int(section["size"], 16) // 8
    if initialisers != expected["initialisers"]:
        yield f"it has {initialisers} initialisers instead of {expected['initialisers']}"


def unwind_faults(image):
    """Exceptions of the host pass through every function, so each must say how to leave it."""
    if not image.unwinding:
        yield "it has no unwind information"
    for offset, encoding in image.unwinding:
        if int(encoding, 16) >> 24 & 0x0F not in (2, 4):  # without and with a frame
            yield f"the function at {offset} cannot be unwound (encoding {encoding})"


def signature_faults(image, identifier):
    """What some kernel from iOS 7 to 12 would refuse, misread or find changed."""
    if len(image.of("LC_CODE_SIGNATURE")) != 1:
        yield "it has no code signature"
        return
    command, linkedit = image.of("LC_CODE_SIGNATURE")[0], image.of("LC_SEGMENT_64")[-1]
    start, size = int(command["dataoff"]), int(command["datasize"])
    if start + size != len(image.data) or start % 16 or size % 16:
        yield "the code signature does not end with the file or is not aligned"
    first, length, memory = (int(linkedit[name], 0) for name in ("fileoff", "filesize", "vmsize"))
    if linkedit["segname"] != "__LINKEDIT" or first + length != start + size or memory % 0x4000 or memory < length:
        yield "the last segment is not __LINKEDIT, does not end with the signature or has no room for it in memory"
    for data, end in linked_data(image):
        if not first <= data <= end <= start:
            yield f"data for the loader lies from {data} to {end}, outside __LINKEDIT or within the signature"
    yield from blob_faults(image, start, size, identifier)


def linked_data(image):
    """Where each part of __LINKEDIT but the signature begins and ends."""
    names = [(f"{kind}_off", f"{kind}_size") for kind in ("rebase", "bind", "weak_bind", "lazy_bind", "export")]
    for command in image.of("LC_DYLD_INFO_ONLY", "LC_SYMTAB", "LC_FUNCTION_STARTS", "LC_DATA_IN_CODE"):
        for offset, size in [*names, ("stroff", "strsize"), ("dataoff", "datasize")]:
            if int(command.get(size, "0")):
                yield int(command[offset]), int(command[offset]) + int(command[size])


def blob_faults(image, start, size, identifier):
    signature = image.data[start : start + size]
    magic, length, count = struct.unpack_from(">3I", signature)
    slots = [struct.unpack_from(">II", signature, 12 + 8 * index) for index in range(count)]
    if magic != 0xFADE0CC0 or [slot for slot, _ in slots] != sorted([REQUIREMENTS_SLOT, *DIRECTORIES]):
        yield f"the code signature is damaged or has other slots than it should: {slots}"
        return
    offsets = [offset for _, offset in slots] + [length]
    blobs = {slot: signature[offset:end] for (slot, offset), end in zip(slots, offsets[1:])}
    lengths = [struct.unpack_from(">I", blob, 4)[0] for blob in blobs.values()]
    if offsets[0] != 12 + 8 * count or lengths != [len(blob) for blob in blobs.values()] or size - length not in range(16):
        yield "the signature's blobs do not lie one behind the other"
    if blobs[REQUIREMENTS_SLOT] != REQUIREMENTS or any(signature[length:]):
        yield "the signature's requirements are not the empty ones, or its end is not empty"
    for slot, kind in DIRECTORIES.items():
        yield from directory_faults(image, start, blobs[slot], kind, identifier.encode() + b"\0")


def directory_faults(image, limit, directory, kind, identifier):
    name, number = kind
    pages = [image.data[page : min(page + 0x1000, limit)] for page in range(0, limit, 0x1000)]
    requirements, *digests = [hashlib.new(name, content).digest() for content in [REQUIREMENTS, *pages]]
    names = identifier + requirements + bytes(len(requirements))
    text = next(each for each in image.of("LC_SEGMENT_64") if each["segname"] == "__TEXT")
    hashes = DIRECTORY.size + len(names)
    wanted = (0xFADE0C02, hashes + sum(map(len, digests)), 0x20400, 0, hashes, DIRECTORY.size, 2, len(pages), limit)
    wanted += (len(requirements), number, 0, 12, 0, 0, 0, 0, 0, int(text["fileoff"]), int(text["filesize"]), 0)
    for field, found, value in zip(FIELDS, DIRECTORY.unpack_from(directory), wanted, strict=True):
        if found != value:
            yield f"the {name} directory's {field} is {found}, not {value}"
    if directory[DIRECTORY.size : hashes] != names:
        yield f"the {name} directory has another identifier, Info.plist or requirements"
    for index, digest in enumerate(digests):
        if directory[hashes + len(digest) * index :][: len(digest)] != digest:
            yield f"page {index} is not what was signed by {name}"


def allowed_imports(path):
    with open(path, encoding="utf-8") as lines:
        return {tuple(line.split()) for line in lines if line.strip() and not line.startswith("#")}


def faults(data, expected, allowed):
    """Every fault of a binary, given its content; a file that cannot be read is one fault."""
    try:
        image = Image(data)
        checks = (header_faults, command_faults, dependency_faults, section_faults)
        found = [fault for check in checks for fault in check(image, expected)]
        found += [*import_faults(image, expected, allowed), *unwind_faults(image)]
        return found + [*signature_faults(image, expected["identifier"])]
    except (Damaged, IndexError, KeyError, TypeError, ValueError, struct.error) as problem:
        return [f"it cannot be read: {problem!r}"]


def main(library, allowed):
    with open(library, "rb") as file:
        found = faults(file.read(), LIBRARY, allowed_imports(allowed))
    for fault in found:
        print(f"{library}: {fault}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
