"""Reads a Debian package with nothing but the standard library, as a package manager does."""

import io
import tarfile


class Damaged(Exception):
    """The file cannot be read as what it claims to be."""


def members(data):
    """(name, content) of each member of an ar archive."""
    if not data.startswith(b"!<arch>\n"):
        raise Damaged("it is no ar archive")
    offset = 8
    while offset < len(data):
        header = data[offset : offset + 60]
        if len(header) != 60 or header[58:] != b"`\n":
            raise Damaged(f"the member at offset {offset} has a broken header")
        size = int(header[48:58])
        yield header[:16].decode("ascii").rstrip(" /"), data[offset + 60 : offset + 60 + size]
        offset += 60 + size + size % 2


class Package:
    def __init__(self, data):
        parts = list(members(data))
        self.member_names = [name for name, _ in parts]
        content = dict(parts)
        if self.member_names[:1] != ["debian-binary"] or content["debian-binary"] != b"2.0\n":
            raise Damaged("it is not a package of format 2.0")
        self.control_entries = self._entries(content, "control.tar")
        self.entries = self._entries(content, "data.tar")
        self.control = self._fields(self.control_content("control").decode("utf-8"))

    @staticmethod
    def _entries(content, stem):
        """Path to (tar entry, content of a file or None)."""
        found = [name for name in content if name in (f"{stem}.gz", f"{stem}.xz")]
        if len(found) != 1:
            raise Damaged(f"it has no {stem} in gzip or xz")
        result = {}
        with tarfile.open(fileobj=io.BytesIO(content[found[0]])) as archive:
            for entry in archive:
                path = entry.name.removeprefix(".").rstrip("/") or "/"
                if path in result:
                    raise Damaged(f"{path} is in {stem} twice")
                result[path] = (entry, archive.extractfile(entry).read() if entry.isfile() else None)
        return result

    @staticmethod
    def _fields(text):
        fields = {}
        name = None
        for line in text.rstrip("\n").split("\n"):
            if line.startswith(" ") and name:
                fields[name] += "\n" + line[1:]
                continue
            name, colon, value = line.partition(":")
            if not colon or name in fields:
                raise Damaged(f"the control file has a wrong line: {line}")
            fields[name] = value.strip()
        return fields

    def control_content(self, name):
        if f"/{name}" not in self.control_entries:
            raise Damaged(f"it has no {name} among its control files")
        return self.control_entries[f"/{name}"][1]

    def content(self, path):
        if path not in self.entries or self.entries[path][1] is None:
            raise Damaged(f"{path} is missing")
        return self.entries[path][1]
