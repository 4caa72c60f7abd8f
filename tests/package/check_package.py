#!/usr/bin/env python3
"""Holds the installable package against what a phone needs of it: check_package.py PACKAGE SETTINGS ALLOWED_IMPORTS.

SETTINGS is the table of preference keys, ALLOWED_IMPORTS that of the library's imports. Prints every fault in a
sentence and fails if there is one.
"""

import os
import plistlib
import re
import struct
import sys

from archive import Damaged, Package

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "dylib"))
import check_dylib  # noqa: E402
import mach_o  # noqa: E402

LIBRARY = "/Library/MobileSubstrate/DynamicLibraries/rollkeeper.dylib"
FILTER = "/Library/MobileSubstrate/DynamicLibraries/rollkeeper.plist"
ENTRY = "/Library/PreferenceLoader/Preferences/Rollkeeper/Rollkeeper.plist"
BUNDLE = "/Library/PreferenceBundles/RollkeeperPreferences.bundle"
EXECUTABLE = f"{BUNDLE}/RollkeeperPreferences"
RESOURCES = "/Library/Application Support/rollkeeper"
PICTURES = {"album": 28, "move": 22, "greenlock": 22, "whitelock": 50, "padlock": 180}  # points, square
ICON_POINTS = 29

CONTROL = {"Package": "com.nrv.rollkeeper", "Architecture": "iphoneos-arm"}
NEEDED = ("mobilesubstrate", "com.rpetrich.rocketbootstrap", "preferenceloader")
EXECUTABLES = {LIBRARY, EXECUTABLE}
SCRIPTS = {"/postinst", "/postrm"}

# Which kinds of row store something, and as what.
VALUE_CELLS = {"PSSwitchCell": bool, "PSLinkListCell": int}
TYPES = {"boolean": bool, "integer": int}
# The classes that the pane's executable makes at run time, and those of the framework.
PANE_CLASSES = {"RollkeeperPage", "RollkeeperAlbumsPage", "RollkeeperLockingPage"}
FRAMEWORK_CLASSES = {"PSListItemsController"}
# Texts of the pane's code, in its executable rather than in a property list.
TEXT_KEY = re.compile(rb"[a-zA-Z]+(?:\.[a-zA-Z0-9]+)+")
PLAIN_TEXTS = {"ok", "cancel", "save", "remove"}

PANE_DEPENDENCIES = {
    f"{check_dylib.FRAMEWORKS}/Foundation.framework/Foundation",
    f"{check_dylib.FRAMEWORKS}/CoreFoundation.framework/CoreFoundation",
    f"{check_dylib.FRAMEWORKS}/UIKit.framework/UIKit",
    f"{check_dylib.FRAMEWORKS}/Photos.framework/Photos",
    f"{check_dylib.FRAMEWORKS}/LocalAuthentication.framework/LocalAuthentication",
    "/System/Library/PrivateFrameworks/Preferences.framework/Preferences",
    "/usr/lib/libobjc.A.dylib",
    "/usr/lib/libSystem.B.dylib",
}
PANE_WEAK = {"Photos", "LocalAuthentication"}
# What the pane imports beside what the library may import.
PANE_IMPORTS = {
    ("_CFNotificationCenterPostNotification", f"{check_dylib.FRAMEWORKS}/CoreFoundation.framework/CoreFoundation"),
    ("_ivar_getOffset", "/usr/lib/libobjc.A.dylib"),
}


def control_faults(package):
    for field, wanted in CONTROL.items():
        if package.control.get(field) != wanted:
            yield f"the control file's {field} is {package.control.get(field)}, not {wanted}"
    for field in ("Version", "Name", "Maintainer", "Description", "Section", "Installed-Size"):
        if not package.control.get(field):
            yield f"the control file has no {field}"
    depends = [part.strip() for part in package.control.get("Depends", "").split(",")]
    for needed in NEEDED:
        if needed not in depends:
            yield f"it does not depend on {needed}"
    if not any(re.fullmatch(r"firmware \(>= \d+\.\d+\)", part) for part in depends):
        yield "it names no first firmware"
    sizes = [len(content) for _, content in package.entries.values() if content is not None]
    size = sum((length + 1023) // 1024 for length in sizes)
    if package.control.get("Installed-Size") != str(size):
        yield f"its Installed-Size is {package.control.get('Installed-Size')} instead of {size}"
    for path in package.control_entries:
        if path not in SCRIPTS | {"/", "/control"}:
            yield f"the control file {path} has no use"


def mode_faults(path, entry, executable):
    wanted = 0o755 if entry.isdir() or executable else 0o644
    if not (entry.isdir() or entry.isfile()):
        yield f"{path} is neither a file nor a folder"
    elif entry.mode != wanted:
        yield f"{path} has the mode {entry.mode:o} instead of {wanted:o}"
    if (entry.uid, entry.gid) != (0, 0):
        yield f"{path} belongs to {entry.uid}:{entry.gid}, not to root"


def entry_faults(package):
    for path, (entry, _) in package.entries.items():
        yield from mode_faults(path, entry, path in EXECUTABLES)
        if path != "/" and path != "/Library" and not path.startswith("/Library/"):
            yield f"{path} is not below /Library"
        if path.rsplit("/", 1)[-1].startswith(".") or path.endswith("~"):
            yield f"{path} does not belong into a package"
    for path, (entry, _) in package.control_entries.items():
        yield from mode_faults(path, entry, path in SCRIPTS)
    dates = {entry.mtime for entries in (package.entries, package.control_entries) for entry, _ in entries.values()}
    if len(dates) != 1:
        yield "its files have different dates"


def script_faults(package):
    for name in sorted(SCRIPTS):
        text = package.control_content(name[1:]).decode("utf-8")
        if not text.startswith("#!/bin/sh\n"):
            yield f"{name} is no shell script"
        if re.search(r"\b(killall|kill|sbreload|respring|launchctl|rm|reboot)\b", text):
            yield f"{name} does more than to ask the package manager"


def picture_faults(package):
    wanted = {f"{RESOURCES}/{name}": points for name, points in PICTURES.items()}
    wanted[f"{BUNDLE}/icon"] = ICON_POINTS
    for stem, points in wanted.items():
        for scale, ending in ((1, ""), (2, "@2x"), (3, "@3x")):
            data = package.content(f"{stem}{ending}.png")
            if data[:8] != b"\x89PNG\r\n\x1a\n":
                yield f"{stem}{ending}.png is no PNG picture"
                continue
            size = struct.unpack(">II", data[16:24])
            if size != (points * scale, points * scale):
                yield f"{stem}{ending}.png has {size[0]} x {size[1]} pixels instead of {points * scale} squared"


def property_list(package, path):
    try:
        return plistlib.loads(package.content(path))
    except (plistlib.InvalidFileException, ValueError, OverflowError) as problem:
        raise Damaged(f"{path} is no property list: {problem}") from problem
    except Exception as problem:  # the parser's own, which differ between versions
        raise Damaged(f"{path} is no property list: {problem}") from problem


def injection_faults(package):
    content = property_list(package, FILTER)
    if content != {"Filter": {"Bundles": ["com.apple.UIKit"]}}:
        yield f"the filter is {content}, not every process with UIKit"


def entry_list_faults(package):
    entry = property_list(package, ENTRY).get("entry", {})
    wanted = {"cell": "PSLinkCell", "bundle": os.path.basename(BUNDLE).removesuffix(".bundle"), "isController": True}
    for key, value in wanted.items():
        if entry.get(key) != value:
            yield f"the entry's {key} is {entry.get(key)}, not {value}"
    if f"{BUNDLE}/{entry.get('icon')}" not in package.entries:
        yield f"the entry's icon {entry.get('icon')} is missing"
    if not entry.get("label"):
        yield "the entry has no label"


def information_faults(package):
    content = property_list(package, f"{BUNDLE}/Info.plist")
    if f"{BUNDLE}/{content.get('CFBundleExecutable')}" != EXECUTABLE:
        yield f"the bundle's executable is {content.get('CFBundleExecutable')}"
    if content.get("CFBundlePackageType") != "BNDL":
        yield f"the bundle's type is {content.get('CFBundlePackageType')}"
    if content.get("NSPrincipalClass") not in PANE_CLASSES:
        yield f"the bundle's principal class is {content.get('NSPrincipalClass')}"
    for field in ("CFBundleShortVersionString", "CFBundleVersion"):
        if content.get(field) != package.control.get("Version"):
            yield f"the bundle's {field} is {content.get(field)}, not the package's version"


class Pane:
    """The pages of the bundle: name to list of rows."""

    def __init__(self, package):
        self.pages = {}
        for path in package.entries:
            name = re.fullmatch(re.escape(BUNDLE) + r"/(\w+)\.plist", path)
            if name and name[1] != "Info":
                self.pages[name[1]] = property_list(package, path)["items"]

    def rows(self):
        for name, rows in self.pages.items():
            for row in rows:
                yield name, row


def reachable_pages(pane):
    pending, found = ["Root"], set()
    while pending:
        name = pending.pop()
        if name in found or name not in pane.pages:
            continue
        found.add(name)
        pending += [row["page"] for row in pane.pages[name] if "page" in row]
    return found


def page_faults(pane):
    for name in sorted(set(pane.pages) - reachable_pages(pane)):
        yield f"no row leads to the page {name}"
    for name, row in pane.rows():
        where = f"{name}: the row {row.get('label')}"
        if row.get("page", "Root") not in pane.pages:
            yield f"{where} leads to the page {row['page']}, which is missing"
        if row.get("detail", "RollkeeperPage") not in PANE_CLASSES | FRAMEWORK_CLASSES:
            yield f"{where} opens a {row['detail']}, which nobody has"
        if row.get("cell") == "PSLinkCell" and not {"detail", "page"} <= set(row):
            yield f"{where} leads nowhere"
        if "defaults" in row or "PostNotification" in row:
            yield f"{where} would be stored by the framework, past the pane"


def value_faults(pane, settings):
    seen = {}
    for name, row in pane.rows():
        if "key" not in row:
            if row.get("cell") in VALUE_CELLS:
                yield f"{name}: the row {row.get('label')} has no key"
            continue
        key = row["key"]
        if key in seen:
            yield f"{key} has two rows"
        seen[key] = row
        if key not in settings:
            yield f"{key} is no key that has an effect"
            continue
        kind, default = settings[key]
        if VALUE_CELLS.get(row.get("cell")) is not kind or type(row.get("default")) is not kind:
            yield f"{key} is not shown and stored as {kind.__name__}"
        elif row["default"] != default:
            yield f"{key} is shown as {row['default']} while it is not set, and is {default}"
        if "validValues" in row:
            yield from choice_faults(key, row)
    for key in settings:
        if key not in seen:
            yield f"{key} has no row"


def choice_faults(key, row):
    values, titles = row["validValues"], row.get("validTitles", [])
    if len(values) != len(titles) or len(set(values)) != len(values):
        yield f"the values and titles of {key} do not match"
    if any(type(value) is not int for value in values):
        yield f"{key} offers what is no integer"
    if row["default"] not in values:
        yield f"{key} does not offer its default"


def texts(package, path):
    """The entries of a strings file."""
    try:
        content = package.content(path).decode("utf-8")
    except UnicodeDecodeError as problem:
        raise Damaged(f"{path} is not UTF-8: {problem}") from problem
    content = re.sub(r"/\*.*?\*/", "", content, flags=re.S)
    entry = re.compile(r'\s*"((?:[^"\\]|\\.)*)"\s*=\s*"((?:[^"\\]|\\.)*)"\s*;')
    found, offset = {}, 0
    while content[offset:].strip():
        match = entry.match(content, offset)
        if not match:
            raise Damaged(f"{path} cannot be read at: {content[offset:].strip()[:60]}")
        if match[1] in found:
            raise Damaged(f"{path} has {match[1]} twice")
        found[match[1]] = match[2]
        offset = match.end()
    return found


def used_texts(pane):
    for _, row in pane.rows():
        for property_name in ("label", "footerText"):
            if property_name in row:
                yield row[property_name]
        yield from (title for title in row.get("validTitles", []) if not title.isdigit())


def text_faults(package, pane):
    known = texts(package, f"{BUNDLE}/en.lproj/Rollkeeper.strings")
    used = set(used_texts(pane))
    for key in sorted(used - set(known)):
        yield f"there is no text for {key}"
    in_code = {name.decode() for name in TEXT_KEY.findall(package.content(EXECUTABLE))} | PLAIN_TEXTS
    for key in sorted(set(known) - used - in_code):
        yield f"nobody uses the text {key}"
    for key, value in known.items():
        if not value:
            yield f"the text {key} is empty"


def library_faults(package, allowed):
    yield from (f"the library: {fault}" for fault in check_dylib.faults(package.content(LIBRARY), allowed))


def executable_faults(package, allowed):
    data = package.content(EXECUTABLE)
    image = mach_o.Library(data)
    if (image.cpu_type, image.cpu_subtype) != (0x0100000C, 0):
        yield "it is not for every arm64 device"
    if image.file_type != 8:
        yield f"its file type is {image.file_type}, not that of a bundle"
    dependencies = {each.name: each.weak for each in image.dependencies()}
    for name in sorted(set(dependencies) ^ PANE_DEPENDENCIES):
        yield f"it {'needs' if name in dependencies else 'does not name'} {name}"
    for name, weak in dependencies.items():
        if weak != (os.path.basename(name) in PANE_WEAK):
            yield f"{name} is {'weak' if weak else 'not weak'}"
    for command in check_dylib.FORBIDDEN_COMMANDS.keys() & {kind for kind, _, _ in image.commands}:
        yield f"it has {check_dylib.FORBIDDEN_COMMANDS[command]}"
    for symbol, origin in sorted(set(image.imports()) - allowed - PANE_IMPORTS):
        yield f"it imports {symbol} from {origin}, which the list does not allow"
    if image.exported_symbols():
        yield f"it exports {', '.join(image.exported_symbols())}"
    for name in PANE_CLASSES:
        if name.encode() + b"\0" not in data:
            yield f"it does not make the class {name}"
    yield from mach_o.signature_faults(image)


def read_settings(path):
    with open(path, encoding="utf-8") as lines:
        rows = [line.rstrip("\n").split("\t") for line in lines if line.strip() and not line.startswith("#")]
    if rows[:1] != [["key", "type", "default"]]:
        raise Damaged(f"{path} is no table of settings")
    convert = {"boolean": lambda text: text == "true", "integer": int}
    return {key: (TYPES[kind], convert[kind](default)) for key, kind, default in rows[1:]}


def faults(data, settings, allowed):
    """Every fault of a package, given its content; what cannot be read is one fault."""
    try:
        package = Package(data)
    except Damaged as problem:
        return [str(problem)]
    found = []
    checks = (
        lambda: control_faults(package),
        lambda: entry_faults(package),
        lambda: script_faults(package),
        lambda: picture_faults(package),
        lambda: injection_faults(package),
        lambda: entry_list_faults(package),
        lambda: information_faults(package),
        lambda: page_faults(Pane(package)),
        lambda: value_faults(Pane(package), settings),
        lambda: text_faults(package, Pane(package)),
        lambda: library_faults(package, allowed),
        lambda: (f"the pane's executable: {fault}" for fault in executable_faults(package, allowed)),
    )
    for check in checks:
        try:
            found += check()
        except (Damaged, mach_o.Damaged) as problem:
            found.append(str(problem))
    return found


def main(arguments):
    if len(arguments) != 3:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    try:
        with open(arguments[0], "rb") as file:
            found = faults(file.read(), read_settings(arguments[1]), check_dylib.allowed_imports(arguments[2]))
    except (OSError, Damaged, check_dylib.Damaged) as problem:
        print(f"check_package: {problem}", file=sys.stderr)
        return 2
    for fault in found:
        print(f"{arguments[0]}: {fault}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
