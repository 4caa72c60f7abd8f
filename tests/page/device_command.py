"""The command script/device as a person starts and ends it."""

import os
import pathlib
import re
import signal
import subprocess

project = pathlib.Path(__file__).resolve().parents[2]


def processes_with(word):
    """The commands of all processes that have the word in theirs, as lists of words, by number."""
    found = {}
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            words = (folder / "cmdline").read_bytes().decode(errors="replace").split("\0")
        except OSError:  # it has ended
            continue
        if word in words:
            found[int(folder.name)] = words
    return found


class DeviceCommand:
    """Runs it until the end of a with statement."""

    def __init__(self, *arguments):
        # A port that is printed means that everything is up.
        self.process = subprocess.Popen(
            [project / "script/device", *arguments], stdout=subprocess.PIPE, text=True
        )
        for line in self.process.stdout:
            if address := re.search(r"http://127\.0\.0\.1:(\d+)/", line):
                self.address, self.port = address[0], int(address[1])
                return
        self.process.stdout.close()
        raise RuntimeError(f"script/device ended with status {self.process.wait()}")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.end()

    def end(self, by=signal.SIGTERM):
        self.process.send_signal(by)
        self.process.communicate(timeout=60)
        return self.process.returncode

    def folder(self):
        """Of the device: its applications are children that name it."""
        for number, words in processes_with("--device").items():
            status = pathlib.Path(f"/proc/{number}/status").read_text()
            if re.search(rf"^PPid:\s*{self.process.pid}$", status, re.MULTILINE):
                return pathlib.Path(words[words.index("--device") + 1])
        raise RuntimeError("no application runs")

    def kill_host(self, bundle):
        for number, words in processes_with(str(self.folder())).items():
            if bundle in words:
                os.kill(number, signal.SIGKILL)
