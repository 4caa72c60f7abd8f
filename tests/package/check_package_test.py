#!/usr/bin/env python3
"""Tests of the package's checker: check_package_test.py PACKAGE ALLOWED_IMPORTS.

The package is found right, and each way of damaging it is told.
"""

import copy
import plistlib
import sys
import tempfile
import unittest

from check_package import BUNDLE, DYLIB, ENTRY, EXECUTABLE, FILTER, RESOURCES, Damaged, Package, allowed_imports, faults

PACKAGE = Package(sys.argv[1])
ALLOWED = allowed_imports(sys.argv[2])


def content(path, change):
    """The package in which a file, or control file, has other content; nothing else notices."""

    def damage(package):
        files = package.files if path in package.files else package.control_files
        entry, old = files[path]
        files[path] = (entry, change(old))
        assert files[path][1] != old, f"{path} is not damaged"

    return damage


def text(path, old, new):
    return content(path, lambda whole: whole.replace(old.encode(), new.encode()))


def values(path, change):
    def changed(whole):
        value = plistlib.loads(whole)
        change(value)
        return plistlib.dumps(value)

    return content(path, changed)


def attributes(path, **changed):
    return lambda package: [setattr(package.files[path][0], *each) for each in changed.items()]


def without(path):
    return lambda package: [files.pop(path, None) for files in (package.files, package.control_files)]


def moved(path, to):
    return lambda package: package.files.update({to: package.files.pop(path)})


DAMAGES = [
    (text("/control", "iphoneos-arm", "arm64"), "Architecture is arm64"),
    (text("/control", "mobilesubstrate, ", ""), "depend on mobilesubstrate"),
    (text("/control", "firmware (>= 7.0), ", ""), "depend on firmware (>= 7.0)"),
    (text("/control", "firmware (<< 13.0), ", ""), "depend on firmware (<< 13.0)"),
    (text("/control", "Installed-Size: ", "Installed-Size: 9"), "Installed-Size is 9"),
    (text("/control", "Maintainer:", "Maintained:"), "has no Maintainer"),
    (content("/postinst", lambda old: old + b"killall SpringBoard\n"), "/postinst is no shell script or does more"),
    (without("/postrm"), "its control files are"),
    (attributes(DYLIB, uid=501), "belongs to 501:0"),
    (attributes(FILTER, mode=0o666), "the mode 666"),
    (attributes(EXECUTABLE, mode=0o644), "the mode 644 instead of 755"),
    (attributes(FILTER, mtime=1), "has a date of its own"),
    (moved(f"{RESOURCES}/move.png", "/var/mobile/move.png"), "/var/mobile/move.png does not belong into the package"),
    (moved(f"{RESOURCES}/move.png", f"{RESOURCES}/.move.png"), "/.move.png does not belong into the package"),
    (without(f"{RESOURCES}/move@3x.png"), "move@3x.png is missing"),
    (content(f"{RESOURCES}/move.png", lambda png: png[:16] + b"\0\0\0\1" + png[20:]), "no picture of 22 pixels"),
    (values(FILTER, lambda value: value["Filter"].update(Bundles=["com.apple.camera"])), "not every process"),
    (values(ENTRY, lambda value: value["entry"].update(bundle="Other")), "the entry is"),
    (content(ENTRY, lambda whole: whole[:50]), "is no property list"),
    (text(f"{BUNDLE}/Info.plist", "RollkeeperFirstPage", "Nobody"), "the principal class Nobody"),
    (values(f"{BUNDLE}/Info.plist", lambda value: value.update(CFBundleVersion="0")), "the bundle's information is"),
    (content(DYLIB, lambda data: data[:5000] + b"\0\1\2\3" + data[5004:]), "the library: page"),
    (content(EXECUTABLE, lambda data: data[:5000] + b"\0\1\2\3" + data[5004:]), "the pane's executable: page"),
    (content(EXECUTABLE, lambda data: data[:8] + b"\2" + data[9:]), "the pane's executable: its cpusubtype is 2"),
    (content(EXECUTABLE, lambda data: data + bytes(1 << 16)), "bytes, more than 65536"),
]


class CheckPackage(unittest.TestCase):
    def test_the_package_is_right(self):
        self.assertEqual(faults(PACKAGE, ALLOWED), [])

    def test_imports_that_are_not_allowed_are_told(self):
        found = faults(PACKAGE, {entry for entry in ALLOWED if entry[0] != "_objc_getClass"})
        self.assertTrue(any("the pane's executable: it imports _objc_getClass" in fault for fault in found), found)

    def test_every_damage_is_told(self):
        for damage, expected in DAMAGES:
            with self.subTest(expected):
                package = copy.deepcopy(PACKAGE)
                damage(package)
                found = faults(package, ALLOWED)
                self.assertTrue(any(expected in fault for fault in found), found)

    def test_what_is_no_archive_is_told(self):
        with tempfile.NamedTemporaryFile() as file, self.assertRaises(Damaged):
            file.write(b"nothing")
            file.flush()
            Package(file.name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
