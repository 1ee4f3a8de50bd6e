"""The system calls of a traced program, as strace writes them down."""

import os
import re
from dataclasses import dataclass

# What names a file, speaks to another process, or waits for a file to change.
TRACED = "%file,%network,inotify_add_watch,io_uring_setup"

CALL = re.compile(r"^(\w+)\((.*)\) += (-?\d+)(?:<(.*)>)?")
TEXT = re.compile(r'@?"((?:[^"\\]|\\.)*)"')
FOLDER = re.compile(r"^(?:AT_FDCWD|\d+)<((?:[^>\\]|\\.)*)>")


@dataclass(frozen=True)
class Call:
    name: str
    arguments: str
    opened: str  # the path of the file that it opened, with all links followed

    def paths(self):
        """The absolute paths that it names, of files there or not."""
        folder = FOLDER.match(self.arguments)
        return [os.path.normpath(os.path.join(folder[1] if folder else "/", path))
                for path in TEXT.findall(self.arguments)]

    def has(self, *flags):
        return any(re.search(rf"\b{flag}\b", self.arguments) for flag in flags)


def traced(command, folder):
    """The command to start instead: the program stays the process that is started, and its tracer
    leaves a file for each thread in a folder."""
    return ["strace", "-D", "-ff", "-qq", "-y", "-s", "4096", "-e", f"trace={TRACED}", "-e", "signal=none",
            "-o", str(folder / "thread"), *command]


def calls(folder):
    """The calls that succeeded."""
    for file in sorted(folder.iterdir()):
        for line in file.read_text().splitlines():
            found = CALL.match(line)
            if found and not found[3].startswith("-"):
                yield Call(found[1], found[2], found[4])
