#!/usr/bin/env python3
"""Signs a thin arm64 library or bundle for every iOS from 7 to 12: sign.py IDENTIFIER INPUT OUTPUT.

OUTPUT, which may be INPUT, is replaced at once or left alone. The same input gives the same bytes, and so does a signed
one. The linker's own signature would do for none of the older systems: iOS 7 and 8 accept a directory of SHA-1 hashes
only, 9.0 to 9.2 misread one of SHA-256, and later systems take the better of the two that they find here.
"""

import hashlib
import os
import stat
import struct
import sys
import tempfile

PAGE = 4096  # the only size of signed pages that older kernels accept
SEGMENT_ALIGNMENT = 0x4000
SIGNATURE_ALIGNMENT = 16

LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D
SIGNATURE_COMMAND_SIZE = 16
HEADER_SIZE = 32
SEGMENT_SIZE = 72
SECTION_SIZE = 80
ARM64 = (0x0100000C, 0)
LIBRARY_AND_BUNDLE = (6, 8)

CODE_DIRECTORY_SLOT = 0
REQUIREMENTS_SLOT = 2
ALTERNATE_DIRECTORY_SLOT = 0x1000
EMPTY_REQUIREMENTS = struct.pack(">3I", 0xFADE0C01, 12, 0)
DIRECTORY_SIZE = 88
# Slot, name and number of each hash, in the order of the slots.
DIRECTORIES = ((CODE_DIRECTORY_SLOT, "sha1", 1), (ALTERNATE_DIRECTORY_SLOT, "sha256", 2))


class Unsuitable(Exception):
    """What was given cannot be signed; the text says why."""


def require(condition, otherwise):
    if not condition:
        raise Unsuitable(otherwise)


def aligned(number, alignment):
    return -(-number // alignment) * alignment


class Segment:
    """A segment's numbers, and where its load command lies."""

    def __init__(self, data, command, size):
        require(size >= SEGMENT_SIZE, "a segment's load command is too short")
        self.command = command
        self.name = bytes(data[command + 8 : command + 24]).rstrip(b"\0")
        self.address, _, self.start, self.size = struct.unpack_from("<4Q", data, command + 24)
        require(self.start + self.size <= len(data), "a segment ends behind the file")
        (sections,) = struct.unpack_from("<I", data, command + 64)
        require(size == SEGMENT_SIZE + SECTION_SIZE * sections, "a segment's load command does not fit its sections")
        headers = range(command + SEGMENT_SIZE, command + size, SECTION_SIZE)
        # A section that has no content in the file names no place there.
        self.contents = [start for start in (struct.unpack_from("<I", data, each + 48)[0] for each in headers) if start]


class Binary:
    """A library's content with what of its load commands concerns a signature."""

    def __init__(self, data):
        self.data = bytearray(data)
        require(data[:4] != b"\xca\xfe\xba\xbe" and data[:4] != b"\xca\xfe\xba\xbf", "it is no thin file")
        require(data[:4] == b"\xcf\xfa\xed\xfe", "it is no 64-bit Mach-O file")
        require(len(data) >= HEADER_SIZE, "it ends within its header")
        *processor, kind, self.count, self.commands_size = struct.unpack_from("<5I", data, 4)
        require(tuple(processor) == ARM64, "it is not for arm64")
        require(kind in LIBRARY_AND_BUNDLE, "it is neither a library nor a bundle")
        self.segments = {}
        self.signature_command = None
        self.read_commands()
        require(b"__TEXT" in self.segments, "it has no __TEXT segment")
        require(b"__LINKEDIT" in self.segments, "it has no __LINKEDIT segment")
        self.text, self.linkedit = (self.segments[name] for name in (b"__TEXT", b"__LINKEDIT"))
        require(self.linkedit.start + self.linkedit.size == len(data), "it does not end with __LINKEDIT")
        last = max(self.segments.values(), key=lambda segment: segment.address)
        require(last is self.linkedit, "__LINKEDIT is not its last segment")

    def read_commands(self):
        command, end = HEADER_SIZE, HEADER_SIZE + self.commands_size
        require(end <= len(self.data), "its load commands end behind the file")
        for _ in range(self.count):
            require(command + 8 <= end, "it has fewer load commands than it says")
            kind, size = struct.unpack_from("<II", self.data, command)
            require(size >= 8 and size % 8 == 0 and command + size <= end, "a load command has a wrong size")
            if kind == LC_SEGMENT_64:
                segment = Segment(self.data, command, size)
                require(segment.name not in self.segments, "it has two segments of one name")
                self.segments[segment.name] = segment
            if kind == LC_CODE_SIGNATURE:
                require(size == SIGNATURE_COMMAND_SIZE, "the signature's load command has a wrong size")
                require(self.signature_command is None, "it has two signatures")
                self.signature_command = command
            command += size
        require(command == end, "its load commands have another size than it says")

    def remove_signature(self):
        """Leaves the load command, whose numbers are written anew, or makes one."""
        if self.signature_command is not None:
            start, size = struct.unpack_from("<II", self.data, self.signature_command + 8)
            require(self.linkedit.start <= start <= start + size == len(self.data), "its signature is not at its end")
            del self.data[start:]
            return
        self.signature_command = HEADER_SIZE + self.commands_size
        end = self.signature_command + SIGNATURE_COMMAND_SIZE
        first = min((start for segment in self.segments.values() for start in segment.contents), default=len(self.data))
        require(end <= first, "there is no room for one more load command")
        struct.pack_into("<II", self.data, self.signature_command, LC_CODE_SIGNATURE, SIGNATURE_COMMAND_SIZE)
        struct.pack_into("<II", self.data, 16, self.count + 1, self.commands_size + SIGNATURE_COMMAND_SIZE)

    def announce_signature(self, size):
        """Makes the load commands tell of a signature of that size behind the present content."""
        struct.pack_into("<II", self.data, self.signature_command + 8, len(self.data), size)
        length = len(self.data) + size - self.linkedit.start
        memory = aligned(length, SEGMENT_ALIGNMENT)
        struct.pack_into("<QQQ", self.data, self.linkedit.command + 32, memory, self.linkedit.start, length)

    def sign(self, identifier):
        self.remove_signature()
        self.data += bytes(-len(self.data) % SIGNATURE_ALIGNMENT)
        # The directories hash the load commands, which tell the size of the directories.
        size = aligned(len(self.signature(identifier)), SIGNATURE_ALIGNMENT)
        self.announce_signature(size)
        self.data += self.signature(identifier).ljust(size, b"\0")

    def signature(self, identifier):
        blobs = {slot: self.code_directory(identifier, *kind) for slot, *kind in DIRECTORIES}
        blobs[REQUIREMENTS_SLOT] = EMPTY_REQUIREMENTS
        index, content = b"", b""
        start = 12 + 8 * len(blobs)
        for slot in sorted(blobs):
            index += struct.pack(">II", slot, start + len(content))
            content += blobs[slot]
        return struct.pack(">3I", 0xFADE0CC0, start + len(content), len(blobs)) + index + content

    def code_directory(self, identifier, hash_name, hash_number):
        def digest(content):
            return hashlib.new(hash_name, content).digest()

        pages = [digest(self.data[start : start + PAGE]) for start in range(0, len(self.data), PAGE)]
        information = bytes(len(pages[0]))  # a library has no Info.plist of its own
        special = [digest(EMPTY_REQUIREMENTS), information]  # they are counted backwards from the first page
        name = identifier.encode("ascii") + b"\0"
        hashes = DIRECTORY_SIZE + len(name) + sum(map(len, special))
        content = b"".join([name, *special, *pages])
        version, flags = 0x20400, 0
        return (
            struct.pack(">4I", 0xFADE0C02, DIRECTORY_SIZE + len(content), version, flags)
            + struct.pack(">5I", hashes, DIRECTORY_SIZE, len(special), len(pages), len(self.data))
            + struct.pack(">4B", len(pages[0]), hash_number, 0, PAGE.bit_length() - 1)
            + bytes(24)  # spare, scatter, team, spare, a code limit of 64 bits
            + struct.pack(">3Q", self.text.start, self.text.size, 0)
            + content
        )


def signed(data, identifier):
    """The content of a library, signed; Unsuitable when it is none."""
    require(identifier.isascii() and identifier.isprintable() and identifier, "the identifier is not plain text")
    binary = Binary(data)
    binary.sign(identifier)
    return bytes(binary.data)


def replace(path, content, mode):
    """Writes a file that is there as a whole or not at all."""
    with tempfile.NamedTemporaryFile(dir=os.path.dirname(os.path.abspath(path)), delete=False) as file:
        try:
            file.write(content)
            file.close()
            os.chmod(file.name, mode)
            os.replace(file.name, path)
        except OSError:
            os.unlink(file.name)
            raise


def main(arguments):
    if len(arguments) != 3:
        sys.exit("usage: sign.py IDENTIFIER INPUT OUTPUT")
    identifier, source, destination = arguments
    try:
        with open(source, "rb") as file:
            content = signed(file.read(), identifier)
            replace(destination, content, stat.S_IMODE(os.fstat(file.fileno()).st_mode))
    except Unsuitable as reason:
        sys.exit(f"sign.py: {source} cannot be signed: {reason}")
    except OSError as problem:
        sys.exit(f"sign.py: {problem}")


if __name__ == "__main__":
    main(sys.argv[1:])
