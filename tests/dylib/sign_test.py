#!/usr/bin/env python3
"""Tests of the signer, run as the build runs it: sign_test.py SIGNER LIBRARY, with LIBRARY.unsigned beside the library.

That a signature is right is what the library's checker says.
"""

import os
import struct
import subprocess
import sys
import tempfile
import unittest

SIGNER, LIBRARY = sys.argv[1:3]
IDENTIFIER = "com.nrv.rollkeeper"


def content(path):
    with open(path, "rb") as file:
        return file.read()


SIGNED = content(LIBRARY)
UNSIGNED = content(f"{LIBRARY}.unsigned")
COMMANDS = range(struct.unpack_from("<I", SIGNED, 16)[0])


def changed(offset, *numbers, data=SIGNED):
    """The library with other 32-bit numbers at an offset."""
    packed = struct.pack(f"<{len(numbers)}I", *numbers)
    return data[:offset] + packed + data[offset + len(packed) :]


def offsets_of_commands():
    offset = 32
    for _ in COMMANDS:
        yield offset
        offset += struct.unpack_from("<I", SIGNED, offset + 4)[0]


*_, LAST_COMMAND = offsets_of_commands()
NAME_OF_LINKEDIT = SIGNED.index(b"__LINKEDIT")
SIGNATURE = struct.unpack_from("<I", SIGNED, LAST_COMMAND + 8)[0]

# Contents that cannot be signed, and what is said of them.
UNSUITABLE = {
    "no bytes": (b"", "no 64-bit Mach-O"),
    "text": (b"#!/bin/sh\n", "no 64-bit Mach-O"),
    "an ELF file": (b"\x7fELF" + SIGNED[4:], "no 64-bit Mach-O"),
    "a 32-bit file": (changed(0, 0xFEEDFACE), "no 64-bit Mach-O"),
    "a fat file": (b"\xca\xfe\xba\xbe" + SIGNED[4:], "no thin file"),
    "a header": (SIGNED[:31], "ends within its header"),
    "half of the load commands": (SIGNED[:200], "load commands end behind the file"),
    "half a file": (SIGNED[: len(SIGNED) // 2], "a segment ends behind the file"),
    "bytes behind the segments": (SIGNED + bytes(16), "does not end with __LINKEDIT"),
    "code for another processor": (changed(4, 0x01000007), "not for arm64"),
    "code with authenticated pointers": (changed(8, 2), "not for arm64"),
    "a program": (changed(12, 2), "neither a library nor a bundle"),
    "one load command too many": (changed(16, len(COMMANDS) + 1), "fewer load commands"),
    "one load command too few": (changed(16, len(COMMANDS) - 1), "another size than it says"),
    "an empty load command": (changed(36, 0), "a load command has a wrong size"),
    "a long load command": (changed(36, 0x10000), "a load command has a wrong size"),
    "a load command out of line": (changed(36, 73), "a load command has a wrong size"),
    "sections without headers": (changed(32 + 64, 1), "does not fit its sections"),
    "no load commands": (changed(16, 0, 0), "no __TEXT segment"),
    "no last segment": (changed(NAME_OF_LINKEDIT, 0), "no __LINKEDIT segment"),
    "a segment behind the last": (changed(32 + 24, 0x1000000), "not its last segment"),
    "two segments of one name": (
        SIGNED.replace(b"__DATA".ljust(16, b"\0"), b"__TEXT".ljust(16, b"\0"), 1),
        "two segments of one name",
    ),
    "two signatures": (changed(LAST_COMMAND - 16, 0x1D), "two signatures"),
    "a signature elsewhere": (changed(LAST_COMMAND + 8, SIGNATURE - 16), "not at its end"),
    "no room": (changed(32 + 72 + 48, LAST_COMMAND, data=UNSIGNED), "no room for one more load command"),
}


class Signer(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.input, self.output = (os.path.join(self.folder, name) for name in ("input", "output"))

    def sign(self, data, *, identifier=IDENTIFIER, output=None):
        """The exit status and what the signer said."""
        with open(self.input, "wb") as file:
            file.write(data)
        command = [sys.executable, "-B", SIGNER, identifier, self.input, output or self.output]
        result = subprocess.run(command, capture_output=True, check=False, text=True)
        return result.returncode, result.stderr

    def test_the_same_bytes_come_of_a_library_with_and_without_a_signature(self):
        for data in (UNSIGNED, SIGNED):
            self.assertEqual(self.sign(data), (0, ""))
            self.assertEqual(content(self.output), SIGNED)

    def test_a_file_is_replaced_by_itself_and_keeps_its_mode(self):
        self.assertEqual(self.sign(b""), (1, f"sign.py: {self.input} cannot be signed: it is no 64-bit Mach-O file\n"))
        os.chmod(self.input, 0o750)
        self.assertEqual(self.sign(UNSIGNED, output=self.input), (0, ""))
        self.assertEqual((content(self.input), os.stat(self.input).st_mode & 0o777), (SIGNED, 0o750))

    def test_what_cannot_be_signed_is_told_and_nothing_written(self):
        for name, (data, reason) in UNSUITABLE.items():
            with self.subTest(name):
                self.assertNotIn(data, (SIGNED, UNSIGNED))
                status, said = self.sign(data)
                self.assertEqual((status, said.count("\n")), (1, 1), said)
                self.assertIn(reason, said)
                self.assertEqual(os.listdir(self.folder), ["input"])

    def test_other_errors_are_told_in_a_line(self):
        missing = os.path.join(self.folder, "missing", "output")
        for arguments, reason in (({"identifier": ""}, "not plain text"), ({"output": missing}, "No such file")):
            status, said = self.sign(UNSIGNED, **arguments)
            self.assertEqual((status, said.count("\n")), (1, 1), said)
            self.assertIn(reason, said)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
