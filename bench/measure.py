"""Runs the scenarios, natively for times and under callgrind for instructions, and holds the results against the goals.

usage: measure.py --scenario PROGRAM --library FILE --dylib FILE --results FILE [--configurations N]
"""

import argparse
import csv
import json
import pathlib
import platform
import re
import shutil
import statistics
import subprocess
import sys
import tempfile

PLAIN = "com.example.plain"
PHOTOS = "com.apple.mobileslideshow"
DYLIB_LIMIT = 120 * 1024  # bytes
GROWTH_LIMIT = 1.1  # times the growth of the library
LOCKED_LIMIT = 1.1  # times what no locked album costs
LIBRARY_SIZES = (10, 100, 1000, 5000)  # albums
LITERAL_SIZES = (10, 50)  # its cost grows with the square: with 1,000 it runs out of memory
LOCKED_TITLES = (0, 50)  # in a library of 1,000 albums
LOADS = 5
SETTINGS = pathlib.Path(__file__).parents[1] / "tests" / "data" / "settings.tsv"


class Bench:
    def __init__(self, options, folder):
        self.program = str(options.scenario)
        self.library = ["--library", str(options.library)]
        self.folder = folder
        self.rows = []  # (measured, figures as text, verdict or "")
        self.results = {}
        self.missed = 0

    def device(self, albums, release, locked=5):
        path = self.folder / f"{release}-{albums}-{locked}"
        if not path.exists():
            self._output([self.program, "prepare", "--device", str(path), "--albums", str(albums),
                          "--locked", str(locked), "--release", release])
        return ["--device", str(path)]

    def native(self, *arguments):
        """The figures that one process prints; times in seconds of the processor."""
        return json.loads(self._output([self.program, *arguments]))

    def instructions(self, *arguments):
        """Instructions of each measured stretch, by name."""
        with tempfile.TemporaryDirectory(dir=self.folder) as profiles:
            self._output(["valgrind", "-q", "--tool=callgrind", "--instr-atstart=no",
                          f"--callgrind-out-file={profiles}/profile", self.program, *arguments])
            found = {}
            for profile in pathlib.Path(profiles).iterdir():
                text = profile.read_text()
                name = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
                if name:
                    total = int(re.search(r"^totals: (\d+)$", text, re.MULTILINE).group(1))
                    found[name.group(1)] = found.get(name.group(1), 0) + total
            if not found or min(found.values()) == 0:
                raise RuntimeError(f"nothing was counted: {' '.join(arguments)}")
            return found

    def _output(self, command):
        result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        if result.returncode != 0:
            raise RuntimeError(f"{' '.join(command)}\n{result.stderr}")
        return result.stdout

    def row(self, measured, figures, goal=None):
        """`goal` is True or False where there is one to meet, and None where the figures only inform."""
        verdict = "" if goal is None else "met" if goal else "MISSED"
        self.missed += goal is False
        self.rows.append((measured, figures, verdict))
        print(f"{measured:<62} {figures:<66} {verdict}", flush=True)


def microseconds(seconds):
    return f"{seconds * 1e6:,.1f} us"


def preference_files():
    """Two files with the library switched off: one with nothing else, one in which every setting stands."""
    with open(SETTINGS, encoding="utf-8") as table:
        rows = csv.DictReader((line for line in table if not line.startswith("#")), delimiter="\t")
        every = {row["key"]: int(row["default"]) if row["type"] == "integer" else row["default"] == "true"
                 for row in rows}
    every["enabled"] = False
    return {"one setting": {"enabled": False}, "every setting": every}


def measure_load(bench):
    for bundle in (PLAIN, PHOTOS):
        for name, preferences in preference_files().items():
            arguments = ["load", *bench.device(10, "10.3"), "--bundle", bundle, *bench.library,
                         "--preferences", json.dumps(preferences)]
            loads = [bench.native(*arguments) for _ in range(LOADS)]
            times = {figure: statistics.median(load[figure] for load in loads) for figure in loads[0]}
            counts = bench.instructions(*arguments)
            bench.results[f"load, {bundle}, {name}"] = {"seconds": times, "instructions": counts}
            title = f"disabled load, {'Photos' if bundle == PHOTOS else 'plain application'}, {name}"
            bench.row(f"{title}: own, reading", f"{counts['own']:,} : {counts['reading']:,} instructions "
                      f"= {counts['own'] / counts['reading']:.2f}", counts["own"] < counts["reading"])
            bench.row("  the same in time", f"{microseconds(times['own'])} : {microseconds(times['reading'])}")
            bench.row("  reading once more in the same process", f"{counts['reading again']:,} instructions, "
                      f"own share {counts['own'] / counts['reading again']:.2f} times that")


def measure_pass_through(bench):
    for method in ("showPeople", "disallowsSearch", "shouldSkipDeleteConfirmation"):
        instructions, times = {}, {}
        for hook in ("none", "plain", "shared", "library"):
            arguments = ["pass-through", *bench.device(10, "10.3"), "--method", method, "--hook", hook,
                         *(bench.library if hook == "library" else [])]
            native = bench.native(*arguments)
            times[hook] = native["calls"] / native["count"]
            instructions[hook] = bench.instructions(*arguments)["calls"] / native["count"]
        bench.results[f"pass-through, {method}"] = {"seconds": times, "instructions": instructions}
        # The loop around the calls is counted, too; it is the same for all.
        bench.row(f"{method}: library, by hand, unhooked",
                  f"{instructions['library']:.2f} : {instructions['shared']:.2f} : "
                  f"{instructions['none']:.2f} instructions a call",
                  instructions["library"] <= instructions["shared"] + 0.01)
        bench.row("  by hand with unguarded reads", f"{instructions['plain']:.2f} instructions a call")
        bench.row("  time: library, by hand, unhooked",
                  " : ".join(f"{times[hook] * 1e9:.2f} ns" for hook in ("library", "shared", "none")))


def measure_size(bench, dylib):
    size = dylib.stat().st_size
    bench.results["dylib"] = {"bytes": size, "limit": DYLIB_LIMIT}
    bench.row("size of the phone's library", f"{size:,} of {DYLIB_LIMIT:,} bytes = {size / DYLIB_LIMIT:.2f}",
              size <= DYLIB_LIMIT)


def measure_album_cell(bench, configurations):
    device = bench.device(500, "10.3", locked=50)
    times, instructions = {}, {}
    for name, library in (("stock", []), ("library", bench.library)):
        times[name] = bench.native("album-cell", *device, *library)["cell"]
        instructions[name] = bench.instructions("album-cell", *device, *library)["cell"]
    bench.results["album cell"] = {"seconds": times, "instructions": instructions}
    bench.row("one cell, 500 albums, 50 locked: library, stock",
              f"{instructions['library']:,} : {instructions['stock']:,} instructions "
              f"= {instructions['library'] / instructions['stock']:.1f}")
    bench.row("  the same in time", f"{microseconds(times['library'])} : {microseconds(times['stock'])} "
              f"= {times['library'] / times['stock']:.1f}")
    # Few albums: what one configuration leaves behind does not depend on their number, only its time does.
    grown = bench.native("album-cell-growth", *bench.device(20, "10.3"), *bench.library, "--configurations", str(configurations))
    bench.results["album cell, growth"] = grown
    others = ", ".join(f"{count} {name}" for name, count in grown["grown"].items()) or "nothing"
    bench.row(f"{grown['configurations']:,} configurations: objects that became more",
              f"{grown['recognisers']:,} recognisers, else {others}; {grown['memory']:,} KiB",
              not grown["grown"] and grown["recognisers"] == grown["configurations"])


def measure_collections(bench):
    sizes = {}
    for albums in LIBRARY_SIZES:
        device = bench.device(albums, "11.4")
        figures = bench.native("collections", *device, *bench.library)
        figures["stock"] = bench.native("collections", *device)["collections"]
        figures["instructions"] = bench.instructions("collections", *device, *bench.library)["collections"]
        sizes[albums] = figures
        bench.row(f"collections, {albums:,} albums of 20 photos",
                  f"{figures['instructions']:,} instructions, {figures['collections'] * 1e3:,.2f} ms, {figures['memory']:,} KiB at the peak")
    bench.results["collections"] = sizes
    for smaller, larger in zip(LIBRARY_SIZES, LIBRARY_SIZES[1:]):
        growth = {figure: sizes[larger][figure] / sizes[smaller][figure] / (larger / smaller)
                  for figure in ("instructions", "collections")}
        bench.row(f"  from {smaller:,} to {larger:,}, in times the library's growth",
                  f"{growth['instructions']:.2f} in instructions, {growth['collections']:.2f} in time",
                  growth["instructions"] <= GROWTH_LIMIT)


def measure_locked_titles(bench):
    counts = {locked: bench.instructions("collections", *bench.device(1000, "11.4", locked), *bench.library)["collections"]
              for locked in LOCKED_TITLES}
    bench.results["collections, locked titles"] = counts
    none, some = counts.values()
    bench.row("collections, 1,000 albums: 50 titles locked, none", f"{some:,} : {none:,} instructions = {some / none:.3f}",
              some <= LOCKED_LIMIT * none)


def measure_literal_collections(bench):
    for albums in LITERAL_SIZES:
        device = bench.device(albums, "11.4")
        arguments = ["literal-collections", *device, *bench.library]
        literal = {"seconds": bench.native(*arguments)["collections"],
                   "instructions": bench.instructions(*arguments)["collections"]}
        figures = {"collections": bench.native("collections", *device, *bench.library)["collections"],
                   "instructions": bench.instructions("collections", *device, *bench.library)["collections"]}
        bench.results[f"collections, {albums} albums, literal"] = literal
        bench.row(f"collections, {albums:,} albums: literal, library",
                  f"{literal['instructions']:,} : {figures['instructions']:,} instructions "
                  f"= {literal['instructions'] / figures['instructions']:.1f}")
        bench.row("  the same in time", f"{literal['seconds'] * 1e3:,.2f} : {figures['collections'] * 1e3:,.2f} ms "
                  f"= {literal['seconds'] / figures['collections']:.1f}")


def measure_album_fetch(bench):
    device = bench.device(10, "11.4")
    stock = bench.instructions("album-fetch", *device)["fetch"]
    hooked = bench.instructions("album-fetch", *device, *bench.library)["fetch"]
    bench.results["album fetch"] = {"instructions": {"stock": stock, "library": hooked}}
    bench.row("photos of an album fetched: library, stock", f"{hooked:,} : {stock:,} instructions = {hooked / stock:.2f}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("scenario", "library", "dylib", "results"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    parser.add_argument("--configurations", type=int, default=100_000, help="of album cells, looking for growth")
    options = parser.parse_args()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="bench-"))
    try:
        bench = Bench(options, folder)
        measure_size(bench, options.dylib)
        measure_pass_through(bench)
        measure_load(bench)
        measure_album_fetch(bench)
        measure_album_cell(bench, options.configurations)
        measure_collections(bench)
        measure_locked_titles(bench)
        measure_literal_collections(bench)
    except (OSError, RuntimeError) as error:
        print(f"bench: {error}", file=sys.stderr)
        return 2
    finally:
        shutil.rmtree(folder, ignore_errors=True)
    options.results.parent.mkdir(parents=True, exist_ok=True)
    options.results.write_text(json.dumps({"machine": platform.machine(), "missed": bench.missed,
                                           "figures": bench.results}, indent=2) + "\n", encoding="utf-8")
    print(f"{bench.missed} goals missed; every figure is in {options.results}")
    return 1 if bench.missed else 0


if __name__ == "__main__":
    sys.exit(main())
