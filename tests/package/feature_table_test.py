#!/usr/bin/env python3
"""Holds the pane's table of features against docs/device.md and against what class dumps say: feature_table_test.py."""

import csv
import os
import plistlib
import re
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
LAST_RELEASE = "12.4"

# What the system must have for a feature. Where one is not named here, the library itself looks at the release.
NEEDED = {
    "Settings and password": [("UIAlertController", "")],
    "Locked albums": [("PUAlbumListViewController", "didSelectItemAtIndexPath:")],
    "Moved photos": [("PUAssetHidingHelper", "applyHiddenState:completionHandler:")],
    "Album for shared images": [("UISaveToCameraRollActivity", "performActivity"), ("PHAssetCollection", "")],
    "Album for the Camera": [("CAMCaptureEngine", "captureOutput:didFinishCaptureForResolvedSettings:error:")],
    "Stock albums off": [("PHCollectionList", "collections")],
    "Tabs off": [("PUTabbedLibraryViewController", "excludedContentModes")],
    "People and Places off": [("PUAlbumListViewController", "showPeople"), ("PUAlbumListViewController", "showPlaces")],
    "Search removed": [("PUAlbumListViewController", "disallowsSearch")],
    "Deleting without asking": [("PUDeletePhotosActionController", "shouldSkipDeleteConfirmation")],
    "More zoom": [("PUOneUpSettings", "setDefaultMaximumZoomFactor:")],
    "Live Photo badge": [("PUAssetViewModel", "wantsIrisBadgeVisible")],
}


def lines(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read().splitlines()


def number(release):
    return [int(part) for part in release.split(".")]


class FeatureTable(unittest.TestCase):
    def setUp(self):
        with open(os.path.join(ROOT, "package", "pane", "Features.plist"), "rb") as file:
            self.features = {each.pop("name"): each for each in plistlib.load(file)}

    def test_it_is_the_table_of_the_documents(self):
        rows = lines("docs", "device.md")
        start = rows.index("| Feature | needs iOS | gone in iOS |") + 2
        told = {}
        for row in rows[start : rows.index("", start)]:
            name, first, gone = row.strip("| ").split(" | ")
            told[name] = {"first": first} | ({} if gone == "-" else {"gone": gone})
        self.assertEqual(told, self.features)
        self.assertEqual(list(told), list(self.features))

    def test_it_says_what_the_dumps_say(self):
        table = [line for line in lines("tests", "data", "platform-signatures.tsv") if not line.startswith("#")]
        ranges = {(row["class"], row["selector"] or ""): row["releases"] for row in csv.DictReader(table, delimiter="\t")}
        self.assertEqual(self.features.keys() - NEEDED.keys(), {"Your albums off"})
        for name, methods in NEEDED.items():
            bounds = [re.fullmatch(r"([\d.]+)-([\d.]+)", ranges[method]).groups() for method in methods]
            first = max((start for start, _ in bounds), key=number)
            last = min((end for _, end in bounds), key=number)
            gone = {} if last == LAST_RELEASE else {"gone": f"{number(last)[0] + 1}.0"}
            with self.subTest(name):
                self.assertEqual(self.features[name], {"first": first} | gone)


if __name__ == "__main__":
    unittest.main()
