"""Tells how much of the library and the pane the tests of a coverage build reached, and names what they did not.

usage: coverage.py BUILD

Fails under 99 % of lines or 95 % of branches. Lines of unreachable-lines.tsv do not count while they are not reached; one
that is there no more must leave that list.
"""

import csv
import json
import pathlib
import subprocess
import sys

LINES_WANTED, BRANCHES_WANTED = 99.0, 95.0  # percent
ROOT = pathlib.Path(__file__).resolve().parents[1]
TARGETS = ("rollkeeper", "pane")
FOLDERS = ("src", "pane")
UNREACHABLE = pathlib.Path(__file__).with_name("unreachable-lines.tsv")


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True).stdout


def export(build, target, form):
    """What the tests reached of one target, in one of the two forms that tell lines and branches well."""
    profiles = sorted(build.glob(f"profiles/{target}-*"))
    if not profiles:
        sys.exit(f"coverage: {build} has no profile of {target}: run its tests first")
    merged = build / f"{target}.profdata"
    subprocess.run(["llvm-profdata-19", "merge", "-o", merged, *profiles], check=True)
    return output("llvm-cov-19", "export", f"--format={form}", f"--instr-profile={merged}", build / "lib" / f"lib{target}.so")


def own(path):
    """The path within the project when it is of the library or the pane."""
    inside = pathlib.Path(path).relative_to(ROOT) if pathlib.Path(path).is_relative_to(ROOT) else None
    return str(inside) if inside and inside.parts[0] in FOLDERS else None


def add_lines(counts, lcov):
    """{(file, line): times reached}; of a template all instances together."""
    file = None
    for record in lcov.splitlines():
        kind, _, value = record.partition(":")
        if kind == "SF":
            file = own(value)
        elif kind == "DA" and file:
            line, count = map(int, value.split(",")[:2])
            counts[file, line] = counts.get((file, line), 0) + count


def add_branches(counts, exported):
    """{(file, line, column, outcome): times taken}; of a template all instances together."""
    for function in exported["data"][0]["functions"]:
        for branch in function["branches"]:
            line, column, taken, not_taken, file = branch[0], branch[1], branch[4], branch[5], branch[6]
            path = own(function["filenames"][file])
            for outcome, count in (("true", taken), ("false", not_taken)) if path else ():
                key = (path, line, column, outcome)
                counts[key] = counts.get(key, 0) + count


def unreachable_lines(counts):
    """The listed lines, where they were not reached, and complaints about entries that say nothing."""
    found, complaints = set(), []
    with open(UNREACHABLE, encoding="utf-8") as table:
        rows = csv.DictReader((line for line in table if not line.startswith("#")), delimiter="\t", quoting=csv.QUOTE_NONE)
        for row in rows:
            text = (ROOT / row["file"]).read_text(encoding="utf-8").splitlines()
            here = {(row["file"], line) for line, content in enumerate(text, 1) if content.strip() == row["line"]}
            if not here or not row["reason"]:
                complaints.append(f"{UNREACHABLE.name}: {row['file']}: {row['line']}: is there no more, or without a reason")
            found |= {place for place in here if counts.get(place) == 0}
    return found, complaints


def summary(name, counts, wanted):
    reached = sum(count > 0 for count in counts.values())
    percent = 100 * reached / len(counts)
    print(f"{name}: {reached} of {len(counts)} reached, {percent:.2f} % (at least {wanted} % wanted)")
    return percent >= wanted


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    build = pathlib.Path(sys.argv[1]).resolve()
    lines, branches = {}, {}
    for target in TARGETS:
        add_lines(lines, export(build, target, "lcov"))
        add_branches(branches, json.loads(export(build, target, "text")))
    excused, complaints = unreachable_lines(lines)
    lines = {place: count for place, count in lines.items() if place not in excused}
    branches = {place: count for place, count in branches.items() if place[:2] not in excused}
    for place in sorted(place for place, count in lines.items() if count == 0):
        print("not reached: {}:{}".format(*place))
    for place in sorted(place for place, count in branches.items() if count == 0 and lines.get(place[:2], 0) > 0):
        print("never {3}: {0}:{1}:{2}".format(*place))
    for complaint in complaints:
        print(complaint)
    enough = [summary("lines", lines, LINES_WANTED), summary("branches", branches, BRANCHES_WANTED)]
    print(f"lines that no test can reach: {len(excused)}, named in {UNREACHABLE.relative_to(ROOT)}")
    sys.exit(0 if all(enough) and not complaints else 1)


if __name__ == "__main__":
    main()
