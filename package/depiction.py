#!/usr/bin/env python3
"""Writes what a package manager shows of Rollkeeper: depiction.py URL FOLDER.

FOLDER gets index.html, for those that show a web page, and native.json, for those that draw the page themselves, which
find its pictures below URL. The pictures are the README's, and lie in FOLDER/screens already. Every text is taken from
where it is kept: the README, the changelog, the settings pane's table of features.
"""

import html
import json
import os
import plistlib
import re
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
STYLE = """
body { font: 16px/1.45 -apple-system, Helvetica, Arial, sans-serif; margin: 0 auto; max-width: 40em; padding: 1em;
       color: #222; background: #fff }
h2 { font-size: 1.2em; margin: 1.6em 0 .4em }
ul { padding-left: 1.2em }
table { border-collapse: collapse; width: 100% }
th { text-align: left }
td, th { border-bottom: 1px solid #8884; padding: .4em 0 }
.screens { display: flex; gap: 12px; overflow-x: auto; scroll-snap-type: x mandatory }
.screens img { width: 200px; border: 1px solid #8884; border-radius: 10px; scroll-snap-align: start }
@media (prefers-color-scheme: dark) { body { color: #eee; background: #111 } }
"""


def content(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read()


def section(text, title):
    """What stands below a heading of a Markdown text, up to the next of its rank."""
    found = re.search(rf"^## {re.escape(title)}\n+(.*?)(?=^## |^License|\Z)", text, re.MULTILINE | re.DOTALL)
    if not found or not found[1].strip():
        sys.exit(f"depiction.py: there is no section {title!r}")
    # Managers know nothing of the folder that links lead into.
    return re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", found[1]).strip()


def introduction(readme):
    """What the README says before its pictures."""
    return section(readme.replace("# Rollkeeper\n", "## Rollkeeper\n", 1), "Rollkeeper").partition("\n|")[0].strip()


def pictures(readme):
    """Name and description of each picture of the README."""
    return re.findall(r'<img src="docs/pictures/([^"]+)\.svg"[^>]* alt="([^"]+)"', readme)


def as_html(text):
    return subprocess.run(["cmark"], input=text, capture_output=True, check=True, text=True).stdout.strip()


def features():
    """Name and releases of each feature, as pairs of texts."""
    with open(os.path.join(ROOT, "package", "pane", "Features.plist"), "rb") as file:
        for feature in plistlib.load(file):
            end = f", gone in {feature['gone']}" if "gone" in feature else ""
            yield feature["name"], f"from iOS {feature['first']}{end}"


def web_page(parts, screens):
    rows = "\n".join(f"<tr><td>{html.escape(name)}</td><td>{html.escape(text)}</td></tr>" for name, text in features())
    strip = "\n".join(f'<img src="screens/{name}.png" alt="{html.escape(text)}">' for name, text in screens)
    about, limits, changes = map(as_html, parts)
    return f"""<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Rollkeeper</title>
<style>{STYLE}</style>
</head>
<body>
{about}
<div class="screens">
{strip}
</div>
<h2>What works on which iOS</h2>
<table>
{rows}
</table>
<h2>Limits</h2>
{limits}
<h2>Changes</h2>
{changes}
</body>
</html>
"""


def native_page(url, parts, screens):
    def paragraphs(content):
        return {"class": "DepictionMarkdownView", "markdown": content, "useSpacing": True}

    def heading(title):
        return {"class": "DepictionSubheaderView", "title": title, "useBoldText": True}

    def tab(name, *views):
        return {"class": "DepictionStackView", "tabname": name, "views": list(views)}

    about, limits, changes = parts
    strip = {
        "class": "DepictionScreenshotsView",
        "itemCornerRadius": 8,
        "itemSize": "{180, 320}",
        "screenshots": [{"url": f"{url}screens/{name}.png", "accessibilityText": text} for name, text in screens],
    }
    table = [{"class": "DepictionTableTextView", "title": name, "text": text} for name, text in features()]
    return {
        "class": "DepictionTabView",
        "minVersion": "0.1",
        "tintColor": "#147efb",
        "tabs": [
            tab("Details", paragraphs(about), strip, heading("What works on which iOS"), *table, heading("Limits"), paragraphs(limits)),
            tab("Changes", paragraphs(changes)),
        ],
    }


def main(url, folder):
    readme, changelog = content("README.md"), content("CHANGELOG.md")
    screens = pictures(readme)
    if sorted(f"{name}.png" for name, _ in screens) != sorted(os.listdir(os.path.join(folder, "screens"))):
        sys.exit("depiction.py: the README shows other pictures than docs/pictures holds")
    newest = re.search(r"^## (.*)$", changelog, re.MULTILINE)[1]
    parts = introduction(readme), section(readme, "Limits"), section(changelog, newest)
    with open(os.path.join(folder, "index.html"), "w", encoding="utf-8") as file:
        file.write(web_page(parts, screens))
    with open(os.path.join(folder, "native.json"), "w", encoding="utf-8") as file:
        json.dump(native_page(url, parts, screens), file, indent=1, ensure_ascii=False)
        file.write("\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
