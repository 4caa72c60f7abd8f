#!/usr/bin/env python3
"""Tests of the package's checker: check_package_test.py PACKAGE SETTINGS ALLOWED_IMPORTS.

The package is found right, and each way of damaging it is told.
"""

import io
import plistlib
import sys
import tarfile
import unittest

import check_package
from archive import members
from check_package import BUNDLE, ENTRY, EXECUTABLE, FILTER, LIBRARY, RESOURCES

PACKAGE, SETTINGS, ALLOWED = None, None, None
STRINGS = f"{BUNDLE}/en.lproj/Rollkeeper.strings"


def repacked(archive, edit):
    """The tar archive with every entry as `edit(path, entry, content)` leaves it: a list of (entry, content)."""
    result = io.BytesIO()
    with tarfile.open(fileobj=io.BytesIO(archive)) as old, tarfile.open(fileobj=result, mode="w:gz") as new:
        for entry in old:
            content = old.extractfile(entry).read() if entry.isfile() else b""
            for changed, data in edit(entry.name.removeprefix("."), entry, content):
                changed.size = len(data)
                new.addfile(changed, io.BytesIO(data) if changed.isfile() else None)
    return result.getvalue()


def with_member(data, name, change):
    result = b"!<arch>\n"
    for member, content in members(data):
        content = change(content) if member == name else content
        header = f"{member:<16}{0:<12}{0:<6}{0:<6}{'100644':<8}{len(content):<10}`\n"
        result += header.encode() + content + b"\n" * (len(content) % 2)
    return result


def edited(path, change, member="data.tar.gz"):
    """The package in which `change(entry, content)` makes the list of entries in place of one."""
    touched = []

    def edit(name, entry, content):
        if name.rstrip("/") != path:
            return [(entry, content)]
        touched.append(name)
        return change(entry, content)

    result = with_member(PACKAGE, member, lambda archive: repacked(archive, edit))
    assert touched, f"{path} is not there to be damaged"
    return result


def with_content(path, change, member="data.tar.gz"):
    return edited(path, lambda entry, content: [(entry, change(content))], member)


def with_control(old, new):
    return with_content("/control", lambda content: replaced(content, old, new), "control.tar.gz")


def replaced(content, old, new):
    assert old in content, f"{old} is not there to be damaged"
    return content.replace(old, new)


def with_entry(path, **attributes):
    def change(entry, content):
        for name, value in attributes.items():
            setattr(entry, name, value)
        return [(entry, content)]

    return edited(path, change)


def with_list(path, change):
    def edit(content):
        value = plistlib.loads(content)
        change(value)
        return plistlib.dumps(value)

    return with_content(path, edit)


def without(path, member="data.tar.gz"):
    return edited(path, lambda entry, content: [], member)


def row_of(items, key):
    return next(row for row in items["items"] if row.get("key") == key)


def change_row(page, named, /, **properties):
    return with_list(f"{BUNDLE}/{page}.plist", lambda items: row_of(items, named).update(properties))


DAMAGES = {
    "another architecture": (lambda: with_control(b"iphoneos-arm", b"arm64"), "Architecture is arm64"),
    "no hooking framework": (lambda: with_control(b"mobilesubstrate, ", b""), "depend on mobilesubstrate"),
    "no firmware bound": (lambda: with_control(b"firmware (>= 7.0), ", b""), "names no first firmware"),
    "a wrong size": (lambda: with_control(b"Installed-Size: ", b"Installed-Size: 9"), "Installed-Size is 9"),
    "a script that kills": (
        lambda: with_content("/postinst", lambda text: text + b"killall SpringBoard\n", "control.tar.gz"),
        "does more than to ask",
    ),
    "a missing script": (lambda: without("/postrm", "control.tar.gz"), "no postrm"),
    "another owner": (lambda: with_entry(LIBRARY, uid=501), "belongs to 501:0"),
    "a mode for all": (lambda: with_entry(FILTER, mode=0o666), "the mode 666"),
    "a program that cannot run": (lambda: with_entry(EXECUTABLE, mode=0o644), "the mode 644 instead of 755"),
    "a date of its own": (lambda: with_entry(FILTER, mtime=1), "different dates"),
    "a file in the user's folder": (
        lambda: with_entry(f"{RESOURCES}/move.png", name="./var/mobile/move.png"),
        "/var/mobile/move.png is not below /Library",
    ),
    "a missing picture": (lambda: without(f"{RESOURCES}/move@3x.png"), "move@3x.png is missing"),
    "a picture of another size": (
        lambda: with_content(f"{RESOURCES}/move.png", lambda png: png[:16] + b"\0\0\0\1" + png[20:]),
        "move.png has 1 x 22 pixels",
    ),
    "a filter for one application": (
        lambda: with_list(FILTER, lambda value: value["Filter"].update(Bundles=["com.apple.camera"])),
        "not every process with UIKit",
    ),
    "a filter with a version range": (
        lambda: with_list(FILTER, lambda value: value["Filter"].update(CoreFoundationVersion=[847.2])),
        "not every process with UIKit",
    ),
    "an entry for another bundle": (
        lambda: with_list(ENTRY, lambda value: value["entry"].update(bundle="Other")),
        "the entry's bundle is Other",
    ),
    "a damaged property list": (lambda: with_content(ENTRY, lambda text: text[:50]), "is no property list"),
    "an unknown principal class": (
        lambda: with_list(f"{BUNDLE}/Info.plist", lambda value: value.update(NSPrincipalClass="Nobody")),
        "principal class is Nobody",
    ),
    "a version of its own": (
        lambda: with_list(f"{BUNDLE}/Info.plist", lambda value: value.update(CFBundleVersion="0")),
        "CFBundleVersion is 0",
    ),
    "another default": (lambda: change_row("Root", "enabled", default=False), "enabled is shown as False"),
    "a default of another type": (lambda: change_row("Root", "enabled", default=1), "not shown and stored as bool"),
    "an unknown key": (lambda: change_row("Root", "enabled", key="enable"), "enable is no key"),
    "a missing key": (lambda: change_row("Root", "enabled", key="enable"), "enabled has no row"),
    "a key twice": (lambda: change_row("Photos", "skipDelete", key="increaseZoom"), "increaseZoom has two rows"),
    "a value that is not offered": (lambda: change_row("Locking", "passOption", validValues=[1, 2, 3]), "offer its default"),
    "a title too few": (lambda: change_row("Locking", "passOption", validTitles=["ok"]), "do not match"),
    "a text that is missing": (lambda: change_row("Root", "enabled", label="no.text"), "no text for no.text"),
    "a text that nobody uses": (
        lambda: with_content(STRINGS, lambda text: text + b'"unused.text" = "Unused";\n'),
        "nobody uses the text unused.text",
    ),
    "a damaged strings file": (lambda: with_content(STRINGS, lambda text: text + b'"open'), "cannot be read at"),
    "a page that is missing": (lambda: without(f"{BUNDLE}/Tabs.plist"), "the page Tabs, which is missing"),
    "a library changed after signing": (
        lambda: with_content(LIBRARY, lambda data: data[:5000] + b"\0\1\2\3" + data[5004:]),
        "the library: page",
    ),
    "an executable changed after signing": (
        lambda: with_content(EXECUTABLE, lambda data: data[:5000] + b"\0\1\2\3" + data[5004:]),
        "the pane's executable: page",
    ),
    "an executable for another processor": (
        lambda: with_content(EXECUTABLE, lambda data: data[:8] + b"\2" + data[9:]),
        "not for every arm64 device",
    ),
    "no archive": (lambda: b"nothing", "no ar archive"),
    "an archive cut short": (lambda: PACKAGE[:40], "broken header"),
}


class CheckPackage(unittest.TestCase):
    def faults(self, data):
        return check_package.faults(data, SETTINGS, ALLOWED)

    def test_the_package_is_right(self):
        self.assertEqual(self.faults(PACKAGE), [])

    def test_repacking_alone_damages_nothing(self):
        self.assertEqual(self.faults(with_content(FILTER, lambda content: content)), [])

    def test_imports_that_are_not_allowed_are_told(self):
        found = check_package.faults(PACKAGE, SETTINGS, {entry for entry in ALLOWED if entry[0] != "_objc_getClass"})
        self.assertTrue(any("the pane's executable: it imports _objc_getClass" in fault for fault in found), found)

    def test_every_damage_is_told(self):
        for name, (damage, expected) in DAMAGES.items():
            with self.subTest(name):
                found = self.faults(damage())
                self.assertTrue(any(expected in fault for fault in found), found)


if __name__ == "__main__":
    with open(sys.argv[1], "rb") as file:
        PACKAGE = file.read()
    SETTINGS = check_package.read_settings(sys.argv[2])
    ALLOWED = check_package.check_dylib.allowed_imports(sys.argv[3])
    unittest.main(argv=sys.argv[:1])
