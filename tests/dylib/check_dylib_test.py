#!/usr/bin/env python3
"""Shows that the checker finds every fault it looks for, in damaged copies of the real library.

Usage: check_dylib_test.py LIBRARY ALLOWED_IMPORTS
"""

import struct
import sys
import unittest

from check_dylib import DIRECTORIES, DIRECTORY, FIELDS, LIBRARY, allowed_imports, faults

with open(sys.argv[1], "rb") as opened:
    SOUND = opened.read()
ALLOWED = allowed_imports(sys.argv[2])


def with_bytes(offset, replacement):
    return SOUND[:offset] + replacement + SOUND[offset + len(replacement) :]


def with_number(offset, value):
    return with_bytes(offset, struct.pack("<I", value))


def command(kind):
    """Where the first load command of that kind lies."""
    offset = 32
    while struct.unpack_from("<I", SOUND, offset)[0] != kind:
        offset += struct.unpack_from("<I", SOUND, offset + 4)[0]
    return offset


def section(name):
    """Where the header of a section lies, and its content."""
    header = SOUND.index(name.ljust(16, b"\0") + b"__")
    return header, struct.unpack_from("<I", SOUND, header + 48)[0]


def blob(slot):
    """Where a blob of the signature lies."""
    index = [struct.unpack_from(">I", SOUND, SIGNATURE + 12 + 8 * each)[0] for each in range(3)].index(slot)
    return SIGNATURE + struct.unpack_from(">I", SOUND, SIGNATURE + 16 + 8 * index)[0]


TEXT = section(b"__text")[1]
INITIALISERS = section(b"__mod_init_func")[0]
UNWINDING, UNWIND_INFO = section(b"__unwind_info")
COMMON_ENCODINGS, ENCODING_COUNT = struct.unpack_from("<II", SOUND, UNWIND_INFO + 4)
FIXUPS = command(0x80000022)
SIGNATURE = struct.unpack_from("<I", SOUND, command(0x1D) + 8)[0]
LINKEDIT = SOUND.index(b"__LINKEDIT") - 8
# A tree of exports with one leaf, _x, is put behind the file.
WITH_EXPORT = with_bytes(FIXUPS + 40, struct.pack("<II", len(SOUND), 10)) + b"\0\1_x\0\6\2\0\0\0"

DAMAGES = {
    "changed code": (with_bytes(TEXT, bytes([SOUND[TEXT] ^ 1])), "is not what was signed"),
    "half a file": (SOUND[: len(SOUND) // 2], "cannot be read"),
    "nothing": (b"", "cannot be read"),
    "bytes after the signature": (SOUND + bytes(16), "does not end with the file"),
    "another processor": (with_number(4, 0x01000007), "its cputype is 16777223"),
    "an authenticated variant": (with_number(8, 2), "its cpusubtype is 2"),
    "a stub of a library": (with_number(12, 9), "its filetype is 9"),
    "a flat namespace": (with_number(24, 0x00100005), "do not name their libraries"),
    "a later minimum version": (with_number(command(0x25) + 8, 0x00080000), "minimum iOS version is ['8.0']"),
    "another install name": (with_bytes(command(0xD) + 24, b"/x"), "install name"),
    "another load command": (with_number(command(0x25), 0x2F), "it has LC_VERSION_MIN_TVOS"),
    "a segment between pages": (with_number(SOUND.index(b"__LINKEDIT") + 16, 0x19000), "__LINKEDIT is not on"),
    "writable code": (with_number(command(0x19) + 60, 7), "the segment __TEXT is not on"),
    "a strong link to a late framework": (with_number(command(0x80000018), 0xC), "False), not ('1.0.0', True)"),
    "a greater compatibility version": (with_number(command(0xC) + 20, 0x7FFF0000), "('32767.0.0', False), not"),
    "initialisers as offsets": (with_number(INITIALISERS + 64, 0x16), "__mod_init_func of type 0x16"),
    "an initialiser less": (with_bytes(INITIALISERS + 40, struct.pack("<Q", 8)), "1 initialisers"),
    "metadata of a compiler": (with_bytes(INITIALISERS, b"__objc_classlist"), "the section __objc_classlist"),
    "no unwind information": (with_bytes(UNWINDING, b"__xx"), "no unwind information"),
    "a function that cannot be unwound": (
        with_bytes(UNWIND_INFO + COMMON_ENCODINGS, bytes(4 * ENCODING_COUNT)),
        "cannot be unwound",
    ),
    "a large file": (SOUND + bytes(128 * 1024), "more than"),
    "an export": (WITH_EXPORT, "it exports _x"),
    "no signature": (with_number(command(0x1D), 0x2E), "it has no code signature"),
    "no signature's magic": (with_number(SIGNATURE, 0), "the code signature is damaged"),
    "a slot less": (with_number(SIGNATURE + 8, 0x02000000), "has other slots"),
    "slots in another order": (with_bytes(SIGNATURE + 12, SOUND[SIGNATURE + 20 :][:8] * 2), "has other slots"),
    "a gap in the signature": (with_bytes(SIGNATURE + 7, bytes([SOUND[SIGNATURE + 7] ^ 1])), "do not lie one behind the other"),
    "requirements": (with_bytes(blob(2) + 11, b"\1"), "are not the empty ones"),
    "a signature out of line": (
        with_bytes(command(0x1D) + 8, struct.pack("<II", SIGNATURE + 8, len(SOUND) - SIGNATURE - 8)),
        "is not aligned",
    ),
    "a short last segment": (with_number(LINKEDIT + 48, 0x10), "does not end with the signature"),
    "little memory": (with_number(LINKEDIT + 32, 0), "has no room for it in memory"),
    "an export behind the signature": (WITH_EXPORT, "data for the loader lies from"),
}


def damaged_directory(slot, name):
    """Every field, the identifier and the special slots of a directory, each with another value, and two of its pages."""
    start, sizes = blob(slot), [4] * 9 + [1] * 4 + [4] * 4 + [8] * 4
    for index, field in enumerate(FIELDS):
        last = start + sum(sizes[: index + 1]) - 1
        yield with_bytes(last, bytes([SOUND[last] ^ 1])), f"the {name} directory's {field} is "
    (hashes,) = struct.unpack_from(">I", SOUND, start + 16)
    (end,) = struct.unpack_from(">I", SOUND, start + 4)
    for offset in (DIRECTORY.size, hashes - 1, hashes // 2 + 44 + 12):
        yield with_bytes(start + offset, b"\xee"), f"the {name} directory has another identifier, Info.plist or"
    last_page = (SIGNATURE - 1) // 4096
    for offset, page in ((hashes, 0), (end - 1, last_page)):
        yield with_bytes(start + offset, bytes([SOUND[start + offset] ^ 1])), f"page {page} is not what was signed by {name}"
    yield with_bytes(SIGNATURE - 1, b"\xee"), f"page {last_page} is not what was signed by {name}"


class DamagedCopies(unittest.TestCase):
    def expect(self, found, fault):
        self.assertTrue(any(fault in one for one in found), f"not found: {fault}; found: {found}")

    def test_a_sound_library_has_no_faults(self):
        self.assertEqual(faults(SOUND, LIBRARY, ALLOWED), [])

    def test_every_damage_is_found(self):
        for name, (data, fault) in DAMAGES.items():
            with self.subTest(name):
                self.assertNotEqual(data, SOUND)
                self.expect(faults(data, LIBRARY, ALLOWED), fault)

    def test_every_damage_to_a_code_directory_is_found(self):
        for slot, (name, _) in DIRECTORIES.items():
            for data, fault in damaged_directory(slot, name):
                with self.subTest(fault):
                    self.assertNotEqual(data, SOUND)
                    self.expect(faults(data, LIBRARY, ALLOWED), fault)

    def test_imports_are_those_of_the_list(self):
        more = ALLOWED | {("_dlopen", "/usr/lib/libSystem.B.dylib")}
        self.expect(faults(SOUND, LIBRARY, more), "the list allows _dlopen from /usr/lib/libSystem.B.dylib")
        self.expect(faults(SOUND, LIBRARY, ALLOWED - {min(ALLOWED)}), "which the list does not allow")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
