"""Reads a Mach-O dynamic library for arm64, with nothing but the standard library.

It shares no code with what builds or loads the library, so that it can be a witness about both.
"""

import hashlib
import struct

SECTION_TYPE = 0xFF


class Damaged(Exception):
    """The file cannot be read as what it claims to be."""


def unpack(form, data, offset):
    size = struct.calcsize(form)
    if offset < 0 or offset + size > len(data):
        raise Damaged(f"the file ends before offset {offset + size:#x}")
    return struct.unpack_from(form, data, offset)


def text_at(data, offset):
    end = data.find(b"\0", offset)
    if offset > len(data) or end < 0:
        raise Damaged(f"the name at offset {offset:#x} has no end")
    return data[offset:end].decode("utf-8", "replace")


def fixed_text(raw):
    return raw.split(b"\0")[0].decode("ascii", "replace")


def version(number):
    parts = [number >> 16, number >> 8 & 0xFF, number & 0xFF]
    return ".".join(map(str, parts if parts[2] else parts[:2]))


class Section:
    def __init__(self, data, offset):
        name, segment, self.address, self.size, self.offset, _, _, _, flags = unpack("<16s16sQQIIIII", data, offset)
        self.name, self.segment = fixed_text(name), fixed_text(segment)
        self.type = flags & SECTION_TYPE


class Dependency:
    def __init__(self, name, weak, compatibility):
        self.name, self.weak, self.compatibility = name, weak, compatibility


class Library:
    def __init__(self, data):
        self.data = data
        (self.magic, self.cpu_type, self.cpu_subtype, self.file_type, count, size, self.flags, _) = unpack("<8I", data, 0)
        if self.magic != 0xFEEDFACF:
            raise Damaged("it is not a 64-bit Mach-O file")
        self.commands = []
        offset = 32
        for _ in range(count):
            command, command_size = unpack("<II", data, offset)
            if command_size < 8 or offset + command_size > 32 + size:
                raise Damaged("its list of load commands is broken")
            self.commands.append((command, offset, command_size))
            offset += command_size

    def command_offsets(self, *kinds):
        return [offset for command, offset, _ in self.commands if command in kinds]

    def segments(self):
        """(name, address, size, file offset, file size, protection) of each."""
        for offset in self.command_offsets(0x19):
            name, address, size, file_offset, file_size, _, protection = unpack("<16sQQQQII", self.data, offset + 8)
            yield fixed_text(name), address, size, file_offset, file_size, protection

    def sections(self):
        for offset in self.command_offsets(0x19):
            (count,) = unpack("<I", self.data, offset + 64)
            for index in range(count):
                yield Section(self.data, offset + 72 + 80 * index)

    def content(self, section):
        content = self.data[section.offset : section.offset + section.size]
        if len(content) != section.size:
            raise Damaged(f"the section {section.name} reaches past the end of the file")
        return content

    def name(self):
        return [text_at(self.data, offset + unpack("<I", self.data, offset + 8)[0]) for offset in self.command_offsets(0xD)]

    def dependencies(self):
        result = []
        for command, offset, _ in self.commands:
            if command in (0xC, 0x80000018, 0x8000001F, 0x20, 0x80000023):
                name, _, _, compatibility = unpack("<4I", self.data, offset + 8)
                result.append(Dependency(text_at(self.data, offset + name), command == 0x80000018, version(compatibility)))
        return result

    def symbols(self):
        """(name, type, description) of every entry of the symbol table."""
        for offset in self.command_offsets(0x2):
            symbols, count, strings, _ = unpack("<4I", self.data, offset + 8)
            for index in range(count):
                name, kind, _, description, _ = unpack("<IBBHQ", self.data, symbols + 16 * index)
                yield text_at(self.data, strings + name), kind, description

    def imports(self):
        """(symbol, install name of the library it is looked for in)."""
        libraries = self.dependencies()
        for name, kind, description in self.symbols():
            if kind & 0x0F == 0x01:  # undefined and external
                ordinal = description >> 8
                known = 1 <= ordinal <= len(libraries)
                yield name, libraries[ordinal - 1].name if known else f"library number {ordinal}"

    def exported_symbols(self):
        table = [name for name, kind, _ in self.symbols() if kind & 0x01 and kind & 0x0E != 0]
        for offset in self.command_offsets(0x22, 0x80000022):
            start, size = unpack("<II", self.data, offset + 40)
            table += list(exports_of_trie(self.data[start : start + size]))
        return sorted(set(table))

    def bound_symbols(self):
        """Names that the bind opcodes ask the loader for."""
        names = set()
        for offset in self.command_offsets(0x22, 0x80000022):
            for start, size in (unpack("<II", self.data, offset + at) for at in (16, 24, 32)):
                names |= set(names_of_binds(self.data[start : start + size]))
        return names

    def unwind_entries(self):
        """(offset of a function, its encoding) of all compact unwind information, without the entry that ends it."""
        for section in self.sections():
            if section.name == "__unwind_info":
                yield from unwind_entries_of(self.content(section))


def number(data, offset):
    """An unsigned LEB128 number and the offset behind it."""
    result = shift = 0
    while True:
        (byte,) = unpack("<B", data, offset)
        offset += 1
        result |= (byte & 0x7F) << shift
        shift += 7
        if not byte & 0x80:
            return result, offset


def exports_of_trie(trie):
    pending = [(0, "")] if trie else []
    while pending:
        offset, prefix = pending.pop()
        size, offset = number(trie, offset)
        if size:
            yield prefix
        offset += size
        (children,) = unpack("<B", trie, offset)
        offset += 1
        for _ in range(children):
            edge = text_at(trie, offset)
            child, offset = number(trie, offset + len(edge) + 1)
            pending.append((child, prefix + edge))


def names_of_binds(opcodes):
    operands = {0x20: 1, 0x60: 1, 0x70: 1, 0x80: 1, 0xA0: 1, 0xC0: 2}  # numbers that follow; the others have none
    offset = 0
    while offset < len(opcodes):
        opcode = opcodes[offset] & 0xF0
        offset += 1
        if opcode == 0x40:
            name = text_at(opcodes, offset)
            offset += len(name) + 1
            yield name
        if opcode > 0xC0:
            raise Damaged(f"unknown bind opcode {opcode:#x}")
        for _ in range(operands.get(opcode, 0)):
            _, offset = number(opcodes, offset)


def unwind_entries_of(info):
    _, common, common_count, _, _, index, index_count = unpack("<7I", info, 0)
    shared = unpack(f"<{common_count}I", info, common)
    for entry in range(index_count - 1):
        base, page, _ = unpack("<3I", info, index + 12 * entry)
        (kind,) = unpack("<I", info, page)
        if kind == 2:
            start, count = unpack("<HH", info, page + 4)
            for item in range(count):
                yield unpack("<II", info, page + start + 8 * item)
        elif kind == 3:
            start, count, own, _ = unpack("<4H", info, page + 4)
            for item in range(count):
                (packed,) = unpack("<I", info, page + start + 4 * item)
                which = packed >> 24
                local = page + own + 4 * (which - common_count)
                yield base + (packed & 0xFFFFFF), shared[which] if which < common_count else unpack("<I", info, local)[0]
        else:
            raise Damaged(f"unknown page of unwind information {kind}")


def signature_faults(library):
    """What is wrong with the code signature, as sentences."""
    places = library.command_offsets(0x1D)
    if len(places) != 1:
        yield f"it has {len(places)} code signatures instead of one"
        return
    start, size = unpack("<II", library.data, places[0] + 8)
    if start + size != len(library.data):
        yield "the code signature does not end with the file"
    magic, length, count = unpack(">3I", library.data, start)
    if magic != 0xFADE0CC0 or length > size:
        yield "the code signature is damaged"
        return
    blobs = [unpack(">II", library.data, start + 12 + 8 * index) for index in range(count)]
    directories = [start + offset for slot, offset in blobs if slot == 0]
    if len(directories) != 1:
        yield "the code signature has no code directory"
        return
    yield from directory_faults(library.data, directories[0], start)


def directory_faults(data, directory, limit):
    (magic, _, _, flags, hashes, identifier, _, count, code_limit, hash_size, hash_type, _, page_bits) = unpack(
        ">9I4B", data, directory
    )
    if magic != 0xFADE0C02:
        yield "the code directory is damaged"
        return
    if not flags & 0x2:
        yield "the code signature is not marked as ad hoc"
    if (hash_type, hash_size) != (2, 32):
        yield "the pages are not hashed with SHA-256"
        return
    if not text_at(data, directory + identifier):
        yield "the code signature has no identifier"
    if code_limit != limit:
        yield f"the code signature covers {code_limit} bytes instead of {limit}"
    page = 1 << page_bits
    expected = (code_limit + page - 1) // page
    if count != expected:
        yield f"the code signature covers {count} pages instead of {expected}"
    for index in range(count):
        content = data[index * page : min((index + 1) * page, code_limit)]
        (stored,) = unpack("32s", data, directory + hashes + 32 * index)
        if hashlib.sha256(content).digest() != stored:
            yield f"page {index} is not what was signed"
