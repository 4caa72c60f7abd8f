#!/usr/bin/env python3
"""Reads the repository as package managers do: repository_test.py PACKAGE REPOSITORY.

apt itself, served over HTTP and set apart from this machine's own configuration, verifies a copy signed with a key made
for the occasion, lists it and downloads the package.
"""

import bz2
import email
import functools
import gzip
import hashlib
import html.parser
import http.server
import json
import lzma
import os
import plistlib
import shutil
import struct
import subprocess
import sys
import tempfile
import threading
import unittest

PACKAGE, REPOSITORY = (os.path.abspath(path) for path in sys.argv[1:3])
NAME = "com.nrv.rollkeeper"
URL = "https://rollkeeper.nrv.invalid/"
DEPICTION = f"depictions/{NAME}"
FEATURES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "package", "pane", "Features.plist")


def content(*path, folder=REPOSITORY):
    with open(os.path.join(folder, *path), "rb") as file:
        return file.read()


def fields(text):
    return email.message_from_string(text)


def features():
    with open(FEATURES, "rb") as file:
        return [feature["name"] for feature in plistlib.load(file)]


class Lists(unittest.TestCase):
    def test_the_release_names_every_list_with_size_and_hash(self):
        release = fields(content("Release").decode())
        listed = [line.split() for line in release["SHA256"].strip().splitlines()]
        self.assertEqual({name for *_, name in listed}, {"Packages", "Packages.bz2", "Packages.gz", "Packages.xz"})
        for digest, size, name in listed:
            data = content(name)
            self.assertEqual((hashlib.sha256(data).hexdigest(), len(data)), (digest, int(size)))
        for field in ("Origin", "Label", "Suite", "Codename", "Description", "MD5Sum"):
            self.assertTrue(release[field], field)
        self.assertEqual((release["Architectures"], release["Components"]), ("iphoneos-arm", "main"))

    def test_the_date_is_that_of_the_package(self):
        date = email.utils.parsedate_to_datetime(fields(content("Release").decode())["Date"])
        made = subprocess.check_output(["ar", "tv", PACKAGE], env={"TZ": "UTC", "PATH": os.environ["PATH"]}, text=True)
        self.assertIn(date.strftime("%b %e %H:%M %Y"), made)

    def test_every_compression_holds_the_same_list(self):
        plain = content("Packages")
        for ending, module in (("gz", gzip), ("bz2", bz2), ("xz", lzma)):
            self.assertEqual(module.decompress(content(f"Packages.{ending}")), plain)

    def test_the_list_leads_to_the_package_and_its_pages(self):
        entry = fields(content("Packages").decode().strip())
        self.assertEqual((entry["Package"], entry["Architecture"]), (NAME, "iphoneos-arm"))
        self.assertEqual(content(entry["Filename"]), content(PACKAGE))
        self.assertEqual(int(entry["Size"]), os.path.getsize(PACKAGE))
        for field, ending in (("Depiction", ".html"), ("SileoDepiction", ".json"), ("Icon", ".png")):
            self.assertTrue(entry[field].startswith(URL) and entry[field].endswith(ending), entry[field])
            self.assertTrue(content(entry[field].removeprefix(URL)))


class Pages(unittest.TestCase):
    def expect_picture(self, path):
        data = content(path)
        self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
        self.assertGreater(struct.unpack(">I", data[16:20])[0], 100)

    def test_the_web_page_shows_pictures_features_limits_and_changes(self):
        found = []
        parser = html.parser.HTMLParser()
        parser.handle_starttag = lambda tag, attributes: found.append((tag, dict(attributes)))
        page = content(DEPICTION, "index.html").decode()
        parser.feed(page)
        pictures = [attributes["src"] for tag, attributes in found if tag == "img"]
        self.assertGreaterEqual(len(pictures), 3)
        for picture in pictures:
            self.expect_picture(f"{DEPICTION}/{picture}")
        for text in (*features(), "<h2>Limits</h2>\n<ul>", "<h2>Changes</h2>\n<ul>", "It is no encryption"):
            self.assertIn(text, page)
        self.assertNotRegex(page, r"https?://|<script|\]\(")

    def test_the_native_page_is_one_that_managers_can_draw(self):
        page = json.loads(content(DEPICTION, "native.json"))
        self.assertEqual((page["class"], page["minVersion"]), ("DepictionTabView", "0.1"))
        views = [view for tab in page["tabs"] for view in tab["views"]]
        needed = {
            "DepictionMarkdownView": {"markdown"},
            "DepictionScreenshotsView": {"itemCornerRadius", "itemSize", "screenshots"},
            "DepictionSubheaderView": {"title"},
            "DepictionTableTextView": {"title", "text"},
        }
        for view in views:
            self.assertLessEqual(needed[view["class"]], view.keys())
        self.assertEqual([view["title"] for view in views if view["class"] == "DepictionTableTextView"], features())
        (pictures,) = [view["screenshots"] for view in views if view["class"] == "DepictionScreenshotsView"]
        self.assertGreaterEqual(len(pictures), 3)
        for picture in pictures:
            self.assertTrue(picture["url"].startswith(URL) and picture["accessibilityText"])
            self.expect_picture(picture["url"].removeprefix(URL))


class Client(unittest.TestCase):
    """apt on this machine, whose configuration, lists and keys lie in a folder of their own."""

    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.served = os.path.join(self.folder, "served")
        shutil.copytree(REPOSITORY, self.served)
        for path in ("etc/apt/preferences.d", "etc/apt/apt.conf.d", "lists/partial", "archives/partial", "gnupg", "got"):
            os.makedirs(os.path.join(self.folder, path), mode=0o700)
        self.make("status", "")
        self.make("apt.conf", self.configuration())
        handler = functools.partial(http.server.SimpleHTTPRequestHandler, directory=self.served)
        handler.func.log_message = lambda *_: None
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        source = f"deb [signed-by={self.folder}/key.gpg] http://127.0.0.1:{server.server_port}/ ./\n"
        self.make("etc/apt/sources.list", source)

    def configuration(self):
        return f"""
            Dir "{self.folder}"; Dir::Etc "etc/apt"; Dir::State "{self.folder}"; Dir::State::status "status";
            Dir::State::lists "lists"; Dir::Cache "{self.folder}"; Dir::Cache::archives "archives";
            Dir::Log "{self.folder}"; Dir::Bin::methods "/usr/lib/apt/methods";
            APT::Architecture "iphoneos-arm"; APT::Architectures {{ "iphoneos-arm"; }};
            APT::Sandbox::User "root"; Acquire::http::Proxy "DIRECT"; Acquire::Languages "none"; Acquire::Retries "0";
        """

    def make(self, path, text):
        with open(os.path.join(self.folder, path), "w", encoding="utf-8") as file:
            file.write(text)

    def run_tool(self, *command, fails=False):
        environment = {"PATH": os.environ["PATH"], "LC_ALL": "C", "APT_CONFIG": os.path.join(self.folder, "apt.conf")}
        environment["GNUPGHOME"] = os.path.join(self.folder, "gnupg")
        result = subprocess.run(
            command, capture_output=True, check=False, text=True, env=environment, cwd=os.path.join(self.folder, "got")
        )
        self.assertEqual(result.returncode != 0, fails, result.stdout + result.stderr)
        return result.stdout + result.stderr

    def sign(self):
        """As docs/device.md says."""
        key = "Throwaway <nobody@nrv.invalid>"
        self.addCleanup(subprocess.run, ["gpgconf", "--homedir", f"{self.folder}/gnupg", "--kill", "all"], check=False)
        self.run_tool("gpg", "--batch", "--passphrase", "", "--quick-generate-key", key, "ed25519", "sign", "never")
        release = os.path.join(self.served, "Release")
        self.run_tool("gpg", "--batch", "--armor", "--detach-sign", "--output", f"{release}.gpg", release)
        self.run_tool("gpg", "--batch", "--clear-sign", "--output", os.path.join(self.served, "InRelease"), release)
        self.run_tool("gpg", "--batch", "--export", "--output", f"{self.folder}/key.gpg")

    def test_it_verifies_lists_and_downloads_the_package(self):
        self.sign()
        self.run_tool("apt-get", "update", "--error-on=any")
        shown = fields(self.run_tool("apt-cache", "show", NAME))
        self.assertIn("firmware (<< 13.0)", shown["Depends"])
        self.assertIn("Architecture: iphoneos-arm", str(shown))
        self.run_tool("apt-get", "download", NAME)
        (got,) = os.listdir(os.path.join(self.folder, "got"))
        self.assertEqual(content("got", got, folder=self.folder), content(PACKAGE))

    def test_it_refuses_what_is_not_signed_or_was_changed_since(self):
        said = self.run_tool("apt-get", "update", "--error-on=any", fails=True)
        self.assertIn("is not signed", said)
        self.sign()
        for ending in ("", ".gz", ".bz2", ".xz"):
            with open(os.path.join(self.served, f"Packages{ending}"), "ab") as file:
                file.write(b"\n")
        self.assertRegex(self.run_tool("apt-get", "update", "--error-on=any", fails=True), "unexpected size|Mismatch")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
