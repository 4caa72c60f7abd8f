#!/usr/bin/env python3
"""Shows that the checker finds every fault it looks for, in damaged copies of the real library.

Usage: check_dylib_test.py LIBRARY ALLOWED_IMPORTS
"""

import struct
import sys
import unittest

from check_dylib import allowed_imports, faults
from mach_o import Library

SOUND = b""
ALLOWED = set()


def with_bytes(offset, replacement):
    return SOUND[:offset] + replacement + SOUND[offset + len(replacement) :]


def with_number(offset, value):
    return with_bytes(offset, struct.pack("<I", value))


def command(kind):
    return Library(SOUND).command_offsets(kind)[0]


def section_flags(name):
    """Where the flags of a section stand in the file."""
    library = Library(SOUND)
    for offset in library.command_offsets(0x19):
        (count,) = struct.unpack_from("<I", SOUND, offset + 64)
        for index in range(count):
            start = offset + 72 + 80 * index
            if SOUND[start : start + 16].rstrip(b"\0") == name:
                return start + 64
    raise AssertionError(f"the library has no section {name}")


def section_content(name):
    return next(section.offset for section in Library(SOUND).sections() if section.name == name)


class DamagedCopies(unittest.TestCase):
    def expect(self, data, fault, allowed=None):
        found = faults(data, ALLOWED if allowed is None else allowed)
        self.assertTrue(any(fault in one for one in found), f"not found: {fault}; found: {found}")

    def test_a_sound_library_has_no_faults(self):
        self.assertEqual(faults(SOUND, ALLOWED), [])

    def test_changed_code_is_found(self):
        offset = section_content("__text")
        self.expect(with_bytes(offset, bytes([SOUND[offset] ^ 1])), "is not what was signed")

    def test_a_truncated_file_is_found(self):
        self.expect(SOUND[:256], "the file ends")
        self.expect(SOUND[: len(SOUND) // 2], "past the end of the file")

    def test_an_empty_file_is_found(self):
        self.expect(b"", "the file ends")

    def test_bytes_after_the_signature_are_found(self):
        self.expect(SOUND + b"\0", "does not end with the file")

    def test_another_processor_is_found(self):
        self.expect(with_number(4, 0x01000007), "not arm64")

    def test_an_authenticated_variant_is_found(self):
        self.expect(with_number(8, 2), "CPU subtype")

    def test_a_later_minimum_version_is_found(self):
        self.expect(with_number(command(0x25) + 8, 0x00080000), "minimum iOS version")

    def test_another_install_name_is_found(self):
        self.expect(with_bytes(command(0xD) + 24, b"/x"), "install name")

    def test_chained_fixups_are_found(self):
        self.expect(with_number(command(0x80000022), 0x80000034), "chained fix-ups")

    def test_a_strong_link_to_a_late_framework_is_found(self):
        self.expect(with_number(command(0x80000018), 0xC), "as (compatibility version, weak)")

    def test_a_greater_compatibility_version_is_found(self):
        self.expect(with_number(command(0xC) + 20, 0x7FFF0000), "as (compatibility version, weak)")

    def test_offset_initialisers_are_found(self):
        self.expect(with_number(section_flags(b"__mod_init_func"), 0x16), "initialisers as offsets")

    def test_terminators_are_found(self):
        self.expect(with_number(section_flags(b"__mod_init_func"), 0x0A), "it has terminators")

    def test_a_missing_initialiser_is_found(self):
        self.expect(with_bytes(section_flags(b"__mod_init_func") - 24, struct.pack("<Q", 8)), "1 initialisers")

    def test_missing_unwind_information_is_found(self):
        self.expect(with_bytes(section_flags(b"__unwind_info") - 64, b"__xx"), "no unwind information")

    def test_a_function_that_cannot_be_unwound_is_found(self):
        info = section_content("__unwind_info")
        common, count = struct.unpack_from("<II", SOUND, info + 4)
        self.expect(with_bytes(info + common, bytes(4 * count)), "cannot be unwound")

    def test_a_large_file_is_found(self):
        self.expect(SOUND + bytes(128 * 1024), "more than")

    def test_an_import_that_is_not_allowed_is_found(self):
        self.expect(SOUND, "which the list does not allow", ALLOWED - {sorted(ALLOWED)[0]})

    def test_an_allowed_import_that_is_not_used_is_found(self):
        self.expect(SOUND, "which it does not import", ALLOWED | {("_dlopen", "/usr/lib/libSystem.B.dylib")})

    def test_an_exported_symbol_is_found(self):
        symbols = struct.unpack_from("<I", SOUND, command(0x2) + 8)[0]
        for index, (_, kind, _) in enumerate(Library(SOUND).symbols()):
            if kind & 0x0F == 0x01:
                self.expect(with_bytes(symbols + 16 * index + 4, b"\x0f"), "it exports")
                return
        self.fail("the library has no symbol to damage")


if __name__ == "__main__":
    with open(sys.argv[1], "rb") as file:
        SOUND = file.read()
    ALLOWED = allowed_imports(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
