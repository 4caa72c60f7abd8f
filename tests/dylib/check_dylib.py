#!/usr/bin/env python3
"""Holds the phone's library against what a device needs of it: check_dylib.py LIBRARY ALLOWED_IMPORTS.

Prints every fault in a sentence and fails if there is one.
"""

import sys

from mach_o import Damaged, Library, signature_faults, unpack, version

INSTALL_NAME = "/Library/MobileSubstrate/DynamicLibraries/rollkeeper.dylib"
LARGEST_SIZE = 128 * 1024

# Install name: (compatibility version, weak). A greater version than the device's makes its loader refuse; what came
# with iOS 8 must be weak, so that iOS 7 loads the library.
FRAMEWORKS = "/System/Library/Frameworks"
DEPENDENCIES = {
    f"{FRAMEWORKS}/Foundation.framework/Foundation": ("300.0", False),
    f"{FRAMEWORKS}/CoreFoundation.framework/CoreFoundation": ("150.0", False),
    f"{FRAMEWORKS}/UIKit.framework/UIKit": ("1.0", False),
    f"{FRAMEWORKS}/Photos.framework/Photos": ("1.0", True),
    f"{FRAMEWORKS}/LocalAuthentication.framework/LocalAuthentication": ("1.0", True),
    "/System/Library/PrivateFrameworks/AppSupport.framework/AppSupport": ("1.0", False),
    "/usr/lib/libobjc.A.dylib": ("1.0", False),
    "/usr/lib/libSystem.B.dylib": ("1.0", False),
    "/Library/Frameworks/CydiaSubstrate.framework/CydiaSubstrate": ("0.0", False),
    "/usr/lib/librocketbootstrap.dylib": ("0.0", False),
}

# Load commands that a system before iOS 13.4 does not know, or that no library of ours has a use for.
FORBIDDEN_COMMANDS = {
    0x80000034: "chained fix-ups",
    0x80000033: "an exports trie of its own",
    0x32: "a build version in place of a minimum iOS version",
    0x21: "encrypted content",
    0x2C: "encrypted content",
    0x8000001C: "a search path for libraries",
}
FORBIDDEN_SECTIONS = {
    0x0A: "terminators",
    0x16: "initialisers as offsets",
    **{kind: "thread-local variables" for kind in range(0x11, 0x16)},
}
INITIALISER_POINTERS = 0x09
# Without a frame, described by DWARF, with a frame.
UNWIND_MODES = (2, 3, 4)


def header_faults(library):
    if library.cpu_type != 0x0100000C:
        yield f"the CPU type is {library.cpu_type:#x}, not arm64"
    if library.cpu_subtype != 0:
        yield f"the CPU subtype is {library.cpu_subtype:#x}, not that of every arm64 device"
    if library.file_type != 6:
        yield "it is not a dynamic library"
    if not library.flags & 0x80:
        yield "its imports do not name their libraries"
    if len(library.data) > LARGEST_SIZE:
        yield f"it has {len(library.data)} bytes, more than {LARGEST_SIZE}"


def command_faults(library):
    for kind, what in FORBIDDEN_COMMANDS.items():
        if library.command_offsets(kind):
            yield f"it has {what}"
    if library.name() != [INSTALL_NAME]:
        yield f"its install name is {library.name()}"
    minimum = [version(unpack("<I", library.data, offset + 8)[0]) for offset in library.command_offsets(0x25)]
    if minimum != ["7.0"]:
        yield f"its minimum iOS version is {minimum}, not 7.0"
    if len(library.command_offsets(0x80000022)) != 1:
        yield "it has no classic fix-ups"


def segment_faults(library):
    for name, address, _, _, _, protection in library.segments():
        if address % 0x4000:
            yield f"the segment {name} does not start on a 16 KiB page"
        if protection & 2 and protection & 4:
            yield f"the segment {name} can be written and executed"


def dependency_faults(library):
    found = {one.name: (one.compatibility, one.weak) for one in library.dependencies()}
    for name in sorted(found.keys() | DEPENDENCIES.keys()):
        if name not in found:
            yield f"it does not link {name}"
        elif name not in DEPENDENCIES:
            yield f"it links {name}"
        elif found[name] != DEPENDENCIES[name]:
            yield f"it links {name} as (compatibility version, weak) {found[name]}, not {DEPENDENCIES[name]}"


def import_faults(library, allowed):
    imports = set(library.imports())
    for symbol, origin in sorted(imports - allowed):
        yield f"it imports {symbol} from {origin}, which the list does not allow"
    for symbol, origin in sorted(allowed - imports):
        yield f"the list allows {symbol} from {origin}, which it does not import"
    names = {symbol for symbol, _ in imports}
    for symbol in sorted(library.bound_symbols() ^ names):
        yield f"{symbol} is only in one of the symbol table and the binds"
    for symbol in library.exported_symbols():
        yield f"it exports {symbol}"


def section_faults(library):
    initialisers = 0
    names = set()
    for section in library.sections():
        names.add(section.name)
        if section.type in FORBIDDEN_SECTIONS:
            yield f"it has {FORBIDDEN_SECTIONS[section.type]} ({section.name})"
        if section.type == INITIALISER_POINTERS:
            initialisers += section.size // 8
        if section.name.startswith("__objc_"):
            yield f"it has metadata of an Objective-C compiler ({section.name})"
    if initialisers != 2:
        yield f"it has {initialisers} initialisers instead of two"
    if "__unwind_info" not in names:
        yield "it has no unwind information"


def unwind_faults(library):
    """Exceptions of the host pass through every function, so each must say how to leave it."""
    for offset, encoding in library.unwind_entries():
        if encoding >> 24 & 0x0F not in UNWIND_MODES:
            yield f"the function at {offset:#x} cannot be unwound (encoding {encoding:#x})"


def allowed_imports(path):
    with open(path, encoding="utf-8") as lines:
        entries = [line.split() for line in lines if line.strip() and not line.startswith("#")]
    for entry in entries:
        if len(entry) != 2:
            raise Damaged(f"{path}: not a symbol and a library: {' '.join(entry)}")
    return {(symbol, origin) for symbol, origin in entries}


def faults(data, allowed):
    """Every fault of a library, given its content; a file that cannot be read is one fault."""
    try:
        library = Library(data)
        checks = (header_faults, command_faults, segment_faults, dependency_faults, section_faults, unwind_faults)
        found = [fault for check in checks for fault in check(library)]
        return found + list(import_faults(library, allowed)) + list(signature_faults(library))
    except Damaged as problem:
        return [str(problem)]


def main(arguments):
    if len(arguments) != 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    try:
        with open(arguments[0], "rb") as file:
            found = faults(file.read(), allowed_imports(arguments[1]))
    except (OSError, Damaged) as problem:
        print(f"check_dylib: {problem}", file=sys.stderr)
        return 2
    for fault in found:
        print(f"{arguments[0]}: {fault}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
