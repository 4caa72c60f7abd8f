#!/usr/bin/env python3
"""Holds the installable package against what a phone needs of it: check_package.py PACKAGE ALLOWED_IMPORTS.

Prints every fault in a sentence and fails if there is one. What
the pages of settings say is held by the tests of the pane, which show and change them.
"""

import email
import io
import os
import plistlib
import re
import struct
import sys
import tarfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "dylib"))
from check_dylib import EVERYWHERE, FRAMEWORKS, LIBRARY, Damaged, allowed_imports, output_of  # noqa: E402
from check_dylib import faults as binary_faults  # noqa: E402

DYLIB = "/Library/MobileSubstrate/DynamicLibraries/rollkeeper.dylib"
FILTER = "/Library/MobileSubstrate/DynamicLibraries/rollkeeper.plist"
ENTRY = "/Library/PreferenceLoader/Preferences/Rollkeeper/Rollkeeper.plist"
BUNDLE = "/Library/PreferenceBundles/RollkeeperPreferences.bundle"
EXECUTABLE = f"{BUNDLE}/RollkeeperPreferences"
RESOURCES = "/Library/Application Support/rollkeeper"
PICTURES = {  # points, square
    **{f"{RESOURCES}/album": 28, f"{RESOURCES}/move": 22, f"{RESOURCES}/greenlock": 22},
    **{f"{RESOURCES}/whitelock": 50, f"{RESOURCES}/padlock": 180, f"{BUNDLE}/icon": 29},
}
CONTROL = {"Package": "com.nrv.rollkeeper", "Architecture": "iphoneos-arm"}
NEEDED = {
    *("mobilesubstrate", "com.rpetrich.rocketbootstrap", "preferenceloader"),
    *("firmware (>= 7.0)", "firmware (<< 13.0)"),
}
SCRIPTS = {"/postinst", "/postrm"}

PANE = {
    "file type": "8",
    "largest size": 64 * 1024,
    "identifier": "com.nrv.rollkeeper.preferences",
    "install name": [],
    "initialisers": 1,
    "dependencies": EVERYWHERE
    | {
        "/System/Library/PrivateFrameworks/Preferences.framework/Preferences": ("1.0.0", False),
        # The pane is to open, and to say so, where the service cannot be reached.
        "/System/Library/PrivateFrameworks/AppSupport.framework/AppSupport": ("1.0.0", True),
        "/usr/lib/librocketbootstrap.dylib": ("0.0.0", True),
    },
    "imports": {
        ("_CFNotificationCenterPostNotification", f"{FRAMEWORKS}/CoreFoundation.framework/CoreFoundation"),
        ("_ivar_getOffset", "/usr/lib/libobjc.A.dylib"),
    },
}


class Package:
    """The files of a package and its control files: path to (tar entry, content)."""

    def __init__(self, path):
        names = output_of("llvm-ar-19", "t", path).split()
        if names != [b"debian-binary", b"control.tar.gz", b"data.tar.gz"]:
            raise Damaged(f"it is not a package of format 2.0: {names}")
        self.control_files, self.files = (self.entries(path, name) for name in names[1:])

    @staticmethod
    def entries(path, name):
        with tarfile.open(fileobj=io.BytesIO(output_of("llvm-ar-19", "p", path, name))) as archive:
            contents = [(each, archive.extractfile(each).read() if each.isfile() else b"") for each in archive]
        return {each.name.removeprefix(".").rstrip("/") or "/": (each, content) for each, content in contents}

    def field(self, name):
        return email.message_from_bytes(self.control_files["/control"][1])[name]

    def content(self, path):
        if path not in self.files:
            raise Damaged(f"{path} is missing")
        return self.files[path][1]

    def property_list(self, path):
        try:
            return plistlib.loads(self.content(path))
        except Exception as problem:  # the parser's own, which differ between versions
            raise Damaged(f"{path} is no property list: {problem}") from problem


def control_faults(package):
    for field, wanted in CONTROL.items():
        if package.field(field) != wanted:
            yield f"the control file's {field} is {package.field(field)}, not {wanted}"
    for field in ("Version", "Name", "Maintainer", "Description", "Section"):
        if not package.field(field):
            yield f"the control file has no {field}"
    for missing in NEEDED - set(package.field("Depends").split(", ")):
        yield f"it does not depend on {missing}"
    size = sum((len(content) + 1023) // 1024 for _, content in package.files.values())
    if package.field("Installed-Size") != str(size):
        yield f"its Installed-Size is {package.field('Installed-Size')} instead of {size}"
    if set(package.control_files) != SCRIPTS | {"/", "/control"}:
        yield f"its control files are {sorted(package.control_files)}"
    for name in SCRIPTS & set(package.control_files):
        text = package.control_files[name][1].decode("utf-8")
        more = re.search(r"\b(killall|kill|sbreload|respring|launchctl|rm|reboot)\b", text)
        if more or not text.startswith("#!/bin/sh\n"):
            yield f"{name} is no shell script or does more than to ask the package manager"


def entry_faults(package):
    for path, (entry, _) in [*package.files.items(), *package.control_files.items()]:
        wanted = 0o755 if entry.isdir() or path in {DYLIB, EXECUTABLE, *SCRIPTS} else 0o644
        if not (entry.isdir() or entry.isfile()) or entry.mode != wanted:
            yield f"{path} is no file or has the mode {entry.mode:o} instead of {wanted:o}"
        if (entry.uid, entry.gid) != (0, 0):
            yield f"{path} belongs to {entry.uid}:{entry.gid}, not to root"
        if entry.mtime != package.files["/"][0].mtime:
            yield f"{path} has a date of its own"
    for path in package.files:
        if not re.fullmatch(r"/|/Library(/[^./][^/]*(?<!~))*", path):
            yield f"{path} does not belong into the package"


def picture_faults(package):
    for stem, points in PICTURES.items():
        for scale, ending in ((1, ""), (2, "@2x"), (3, "@3x")):
            data = package.content(f"{stem}{ending}.png")
            wanted = b"\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR" + struct.pack(">II", points * scale, points * scale)
            if not data.startswith(wanted):
                yield f"{stem}{ending}.png is no picture of {points * scale} pixels squared"


def list_faults(package):
    content = package.property_list(FILTER)
    if content != {"Filter": {"Bundles": ["com.apple.UIKit"]}}:
        yield f"the filter is {content}, not every process with UIKit"
    entry = package.property_list(ENTRY).get("entry", {})
    wanted = {"bundle": "RollkeeperPreferences", "cell": "PSLinkCell", "icon": "icon.png", "isController": True}
    if entry != wanted | {"label": "Rollkeeper"}:
        yield f"the entry is {entry}"
    information = package.property_list(f"{BUNDLE}/Info.plist")
    version = package.field("Version")
    wanted = {"CFBundleExecutable": os.path.basename(EXECUTABLE), "CFBundlePackageType": "BNDL"}
    wanted |= {"CFBundleShortVersionString": version, "CFBundleVersion": version}
    if not wanted.items() <= information.items():
        yield f"the bundle's information is {information}, not {wanted}"
    name = information.get("NSPrincipalClass", "none")
    if name.encode() + b"\0" not in package.content(EXECUTABLE):
        yield f"the pane's executable does not make the principal class {name}"


def executable_faults(package, allowed):
    for fault in binary_faults(package.content(DYLIB), LIBRARY, allowed):
        yield f"the library: {fault}"
    for fault in binary_faults(package.content(EXECUTABLE), PANE, allowed | PANE["imports"]):
        if not fault.startswith("the list allows"):
            yield f"the pane's executable: {fault}"


def faults(package, allowed):
    """Every fault of a package; what is missing is one fault."""
    found = []
    checks = (control_faults, entry_faults, picture_faults, list_faults, lambda each: executable_faults(each, allowed))
    for check in checks:
        try:
            found += check(package)
        except Damaged as problem:
            found.append(str(problem))
    return found


def main(path, allowed):
    try:
        found = faults(Package(path), allowed_imports(allowed))
    except Damaged as problem:
        found = [str(problem)]
    for fault in found:
        print(f"{path}: {fault}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
