#!/usr/bin/env python3
"""Installs, upgrades and removes the package with dpkg itself: install_test.py PACKAGE.

All of it happens in a folder that stands for a phone's file system, with stand-ins for what the package depends on.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PACKAGE = sys.argv[1]
NAME = "com.nrv.rollkeeper"
DEPENDENCIES = {"mobilesubstrate": "0.9", "com.rpetrich.rocketbootstrap": "1.0", "preferenceloader": "2.2"}
ONLY_IN_OLD = "Library/Application Support/rollkeeper/old.png"
OF_THE_USER = {
    "var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist": "settings",
    "var/mobile/Library/rollkeeper/lockedAlbums.plist": "locked albums",
    "var/mobile/Library/rollkeeper/album.tct": "album",
    "var/mobile/Library/rollkeeper/settings.tct": "password",
}
# dpkg gives files to root and asks for its rights; a namespace of our own has them.
AS_ROOT = [] if os.geteuid() == 0 else ["unshare", "--map-root-user"]

# dpkg waits for the disk after every step; a folder in memory spares that.
IN_MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def build(folder, package):
    result = run("dpkg-deb", "--root-owner-group", "--build", folder, package)
    assert result.returncode == 0, result.stderr
    return package


class Phone(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.prepared = cls.enterClassContext(tempfile.TemporaryDirectory(dir=IN_MEMORY))
        cls().prepare()

    def setUp(self):
        self.folder = os.path.join(self.enterContext(tempfile.TemporaryDirectory(dir=IN_MEMORY)), "copy")
        shutil.copytree(self.prepared, self.folder)
        self.root = os.path.join(self.folder, "root")
        self.before = self.files()

    def prepare(self):
        """A phone with what the package depends on and with files of the user's."""
        self.folder, self.root = self.prepared, os.path.join(self.prepared, "root")
        os.makedirs(f"{self.root}/var/lib/dpkg/updates")
        os.makedirs(f"{self.root}/var/lib/dpkg/info")
        open(f"{self.root}/var/lib/dpkg/status", "w", encoding="ascii").close()
        for path, content in OF_THE_USER.items():
            os.makedirs(os.path.dirname(self.path(path)), exist_ok=True)
            with open(self.path(path), "w", encoding="ascii") as file:
                file.write(content)
        self.dpkg("--add-architecture", "iphoneos-arm")
        self.release("12.4")
        self.dpkg("--install", *(self.stand_in(*each) for each in DEPENDENCIES.items()))

    def path(self, path):
        return os.path.join(self.root, path)

    def dpkg(self, *arguments, fails=False, **environment):
        """What dpkg says. Scripts run outside of the folder, in which there is no shell."""
        command = [*AS_ROOT, "dpkg", f"--root={self.root}", "--force-script-chrootless,bad-path,unsafe-io", *arguments]
        result = run(*command, env={"PATH": os.environ["PATH"], "LC_ALL": "C", **environment})
        self.assertEqual(result.returncode != 0, fails, result.stderr)
        return result.stdout + result.stderr

    def stand_in(self, name, version):
        folder = os.path.join(self.folder, name)
        os.makedirs(f"{folder}/DEBIAN", exist_ok=True)
        with open(f"{folder}/DEBIAN/control", "w", encoding="ascii") as control:
            control.write(f"Package: {name}\nVersion: {version}\nArchitecture: iphoneos-arm\n")
            control.write("Maintainer: Nobody <nobody@nrv.invalid>\nDescription: stand-in\n")
        return build(folder, f"{folder}.deb")

    def release(self, version):
        self.dpkg("--install", self.stand_in("firmware", version))

    def other_version(self, version):
        """The package as another version of it, in which one more file is installed."""
        folder = os.path.join(self.folder, version)
        result = run("dpkg-deb", "--raw-extract", PACKAGE, folder)
        self.assertEqual(result.returncode, 0, result.stderr)
        with open(f"{folder}/DEBIAN/control", encoding="utf-8") as control:
            lines = control.read().splitlines()
        with open(f"{folder}/DEBIAN/control", "w", encoding="utf-8") as control:
            for line in lines:
                control.write(f"Version: {version}\n" if line.startswith("Version:") else f"{line}\n")
        shutil.copy(PACKAGE, os.path.join(folder, ONLY_IN_OLD))
        return build(folder, f"{folder}.deb")

    def files(self):
        """Everything on the phone but dpkg's own notes, with its content."""
        found = {}
        for folder, _, names in os.walk(self.root):
            if folder.startswith(self.path("var/lib/dpkg")):
                continue
            found[os.path.relpath(folder, self.root)] = None
            for name in names:
                with open(os.path.join(folder, name), "rb") as file:
                    found[os.path.relpath(file.name, self.root)] = file.read()
        return found

    def state(self):
        return run("dpkg-query", f"--admindir={self.path('var/lib/dpkg')}", "-W", "-f=${Status} ${Version}", NAME).stdout

    def expect_user_files(self):
        present = self.files()
        for path, content in OF_THE_USER.items():
            self.assertEqual(present[path], content.encode())

    def test_it_is_installed_upgraded_removed_and_installed_again(self):
        self.dpkg("--install", self.other_version("0.9"))
        self.assertEqual(self.state(), "install ok installed 0.9")
        self.assertIn(ONLY_IN_OLD, self.files())
        self.expect_user_files()

        self.dpkg("--install", PACKAGE)
        upgraded = self.files()
        self.assertNotIn(ONLY_IN_OLD, upgraded)
        self.assertNotIn("0.9", self.state())
        self.expect_user_files()

        for removal in ("--remove", "--purge"):
            self.dpkg(removal, NAME)
            self.assertEqual(self.files(), self.before)
            self.assertNotIn("installed", self.state().replace("not-installed", ""))
            self.dpkg("--install", PACKAGE)
            self.assertEqual(self.files(), upgraded)
        self.dpkg("--install", self.other_version("9.9"))
        self.assertEqual(self.state(), "install ok installed 9.9")
        notes = [name for name in os.listdir(self.path("var/lib/dpkg/info")) if name.startswith(NAME)]
        self.assertEqual(sorted(notes), [f"{NAME}.{kind}" for kind in ("list", "md5sums", "postinst", "postrm")])

    def test_what_it_needs_must_be_there(self):
        for version, reason in (("13.0", "firmware (<< 13.0)"), ("6.1", "firmware (>= 7.0)")):
            self.release(version)
            self.assertIn(reason, self.dpkg("--install", PACKAGE, fails=True))
            self.dpkg("--remove", NAME)
        self.release("9.0.2")
        self.dpkg("--install", PACKAGE)
        for name in DEPENDENCIES:
            self.assertIn(f"{NAME}:iphoneos-arm depends on {name}", self.dpkg("--remove", name, fails=True))

    def test_a_package_manager_that_listens_is_asked_for_a_restart(self):
        self.assertNotIn("finish:restart", self.dpkg("--install", PACKAGE))
        for action in (("--install", PACKAGE), ("--remove", NAME)):
            self.assertIn("finish:restart", self.dpkg(*action, CYDIA="1 1"))


class Scripts(unittest.TestCase):
    def test_they_run_with_whatever_listener(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(dir=IN_MEMORY))
        result = run("dpkg-deb", "--control", PACKAGE, f"{folder}/control")
        self.assertEqual(result.returncode, 0, result.stderr)
        for script in ("postinst", "postrm"):
            for listener in (None, "", "1 1", "2", "9 1", "x 1", "1;exit 7", "-1", "99999999999 1"):
                with self.subTest(script=script, listener=listener):
                    environment = {} if listener is None else {"CYDIA": listener}
                    result = run("sh", f"{folder}/control/{script}", "configure", env=environment)
                    heard = "finish:restart" in result.stdout + result.stderr.replace("not found", "")
                    self.assertEqual((result.returncode, heard), (0, listener in ("1 1", "2")), result)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
