#!/usr/bin/env python3
"""Makes hostile files, has them read, and holds what that costs against its bounds.

usage: measure.py PROGRAM [SCALE [NAME...]]
"""

import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

MIB = 1 << 20
GB = 1_000_000_000

MOST_TIMES_THE_FILE = 6
BEYOND_THAT = 64 * MIB
MOST_TIMES_THE_TIME = 2.5

# A run that takes more than this is ended, before the machine is in trouble.
MOST_MEMORY = 14 * GB

# A time beyond its bound is measured so often, and the least counts: the machine's other work only
# adds to it.
ATTEMPTS = 3

# Shorter times say more about the clock and the processor than about the program.
SHORTEST_TIME = 0.2

POST = (b'{"id":"6F9619FF-8B86-4011-B42D-00C04FC964FF","title":"%s","content":"%s",'
        b'"date":788918400,"description":"%s","permalink":"%s"}')
WORDS = b"Some words of a description, as people write it. "
ITEM = (b"<item><title>A title like others</title><link>https://example.com/a-title</link>"
        b"<pubDate>Mon, 5 Jan 2026 09:03:07 +0000</pubDate><description>" + 6 * WORDS
        + b"</description></item>")
ORDINARY_POST = POST % (b"A title like others", 6 * WORDS, 6 * WORDS,
                        b"https:\\/\\/example.com\\/a-title")
EMPTY_POST = POST % (b"", b"", b"", b"")


@dataclass(frozen=True)
class Case:
    """A file: what it begins with, a piece so many times, a separator between, and its end."""

    name: str
    reader: str  # "import", or "start" for posts.json
    piece: bytes
    count: int
    begin: bytes = b""
    separator: bytes = b""
    end: bytes = b""
    posts: int | None = 0  # how many there are to be; None stands for as many as pieces
    grows: bool = False  # what is saved is larger than what is read, and counts as the file


CASES = [
    Case("feed: one line of 2 GB", "import", ITEM, 2 * GB // len(ITEM), b"<rss><channel>", b"",
         b"</channel></rss>", None),
    Case("feed: one line of 2 GB without a tag", "import", WORDS, 2 * GB // len(WORDS)),
    Case("feed: 10 million short items", "import",
         b"<item><title>t</title><link>l</link><description>d</description></item>", 10_000_000,
         posts=None),
    # 13 bytes each, of which come a post of 120 in memory and one of 127 in posts.json.
    Case("feed: 10 million empty items", "import", b"<item></item>", 10_000_000, posts=None, grows=True),
    Case("feed: an item of 500 MB", "import", WORDS, 500_000_000 // len(WORDS),
         b"<item><title>", b"", b"</title></item>", 1),
    Case("feed: a description of 500 MB", "import", WORDS, 500_000_000 // len(WORDS),
         b"<item><description>", b"", b"</description></item>", 1),
    Case("feed: an item of 500 MB in Chinese", "import", "一二三四五六七八九十".encode(),
         500_000_000 // 30, b"<item><title>", b"", b"</title></item>", 1),
    Case("feed: 100 million open items", "import", b"<item>", 100_000_000),
    Case("feed: 100 million open titles", "import", b"<title>", 100_000_000, b"<item>", b"",
         b"</item>", 1),
    Case("feed: 4.5 GB without a tag", "import", WORDS, 4_500_000_000 // len(WORDS)),
    Case("posts: one line of 2 GB", "start", ORDINARY_POST, 2 * GB // len(ORDINARY_POST), b"[",
         b",", b"]", None),
    Case("posts: 10 million empty posts", "start", EMPTY_POST, 10_000_000, b"[", b",", b"]", None),
    Case("posts: a string of 500 MB", "start", WORDS, 500_000_000 // len(WORDS),
         (b"[" + EMPTY_POST)[:-2], b"", b'"}]', 1),
    Case("posts: a string of 500 MB of escapes", "start", b"\\u00e9", 500_000_000 // 6,
         (b"[" + EMPTY_POST)[:-2], b"", b'"}]', 1),
    Case("posts: 100 million open arrays", "start", b"[", 100_000_000),
    Case("posts: 100 million open arrays in a key", "start", b"[", 100_000_000, b'[{"more":'),
    Case("posts: 50 million open objects", "start", b'{"a":', 50_000_000, b"["),
    Case("posts: 100 million numbers in a key", "start", b"0", 100_000_000,
         b"[" + EMPTY_POST[:-1] + b',"more":[', b",", b"]}]", 1),
    Case("posts: 100 million empty strings in a key", "start", b'""', 100_000_000,
         b"[" + EMPTY_POST[:-1] + b',"more":[', b",", b"]}]", 1),
    Case("posts: a number of 500 million digits", "start", b"1", 500_000_000,
         b"[" + EMPTY_POST[:-1] + b',"more":', b"", b"}]", 1),
    Case("posts: a date of 500 million digits", "start", b"0", 500_000_000,
         b"[" + EMPTY_POST[:-1] + b',"date":0.', b"", b"}]", 1),
    # Beyond what the parser takes: such a document does not decode.
    Case("posts: 4.5 GB of white space", "start", b" ", 4_500_000_000, b"[", b"", b"]", 0),
]


@dataclass(frozen=True)
class Cost:
    posts: int
    seconds: float
    peak: int


def write_file(path: Path, case: Case, count: int) -> int:
    piece = case.piece + case.separator
    in_block = max(1, 4 * MIB // len(piece))
    block = piece * in_block
    with path.open("wb") as file:
        file.write(case.begin)
        for _ in range((count - 1) // in_block):
            file.write(block)
        file.write(piece * ((count - 1) % in_block) + case.piece)
        file.write(case.end)
    return path.stat().st_size


def resident(process: subprocess.Popen) -> int:
    try:
        status = Path(f"/proc/{process.pid}/status").read_text(encoding="ascii")
    except OSError:
        return 0
    found = re.search(r"^VmRSS:\s+(\d+) kB$", status, re.MULTILINE)
    return int(found[1]) * 1024 if found else 0


def read_cost(program: str, home: Path, arguments: list[str]) -> tuple[list[Cost], str]:
    """What each stage has cost, and what went wrong."""
    environment = {"HOME": str(home), "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC"}
    with subprocess.Popen([program, *arguments], env=environment, stdout=subprocess.PIPE,
                          text=True) as process:
        ended = ""
        while process.poll() is None:
            if resident(process) > MOST_MEMORY:
                process.kill()
                ended = f"ended at {MOST_MEMORY / GB:.0f} GB of memory"
            time.sleep(0.05)
        output = process.stdout.read()
    if not ended and process.returncode != 0:
        ended = f"ended with {process.returncode}"
    costs = [Cost(int(posts), float(user), int(peak)) for posts, user, peak in
             re.findall(r"posts (\d+) user ([\d.]+) system [\d.]+ peak (\d+)", output)]
    return costs, ended


def measured(program: str, folder: Path, case: Case, count: int) -> tuple[int, list[Cost], str]:
    home = folder / "home"
    home.mkdir()
    try:
        file = home / ("posts.json" if case.reader == "start" else "feed.xml")
        size = write_file(file, case, count)
        arguments = ["start"] if case.reader == "start" else ["import", str(file)]
        costs, wrong = read_cost(program, home, arguments)
        saved = home / "posts.json"
        if case.grows and saved.exists():
            size = saved.stat().st_size
    finally:
        shutil.rmtree(home)
    expected = count if case.posts is None else case.posts
    if not wrong and costs[-1].posts != expected:
        wrong = f"{costs[-1].posts} posts instead of {expected}"
    return size, costs, wrong


def report(program: str, folder: Path, case: Case, scale: float) -> bool:
    count = max(2, int(case.count * scale))
    half_seconds = seconds = math.inf
    for _ in range(ATTEMPTS):
        _, half, wrong = measured(program, folder, case, count // 2)
        if not wrong:
            size, whole, wrong = measured(program, folder, case, count)
        if wrong:
            print(f"{case.name:<42} FAILED: {wrong}", flush=True)
            return False
        half_seconds = min(half_seconds, half[-1].seconds)
        seconds = min(seconds, whole[-1].seconds)
        times = seconds / max(half_seconds, 0.001)
        too_slow = times > MOST_TIMES_THE_TIME and seconds > SHORTEST_TIME
        if not too_slow:
            break

    peak = whole[-1].peak
    faults = []
    if peak > MOST_TIMES_THE_FILE * size + BEYOND_THAT:
        faults.append("too much memory")
    if too_slow:
        faults.append("too much time")
    stages = ", ".join(f"{cost.peak / size:.2f} x" for cost in whole)
    print(f"{case.name:<42} {size / 1e6:7.0f} MB {seconds:7.2f} s "
          f"({times:4.2f} x the half's) {peak / 1e6:7.0f} MB ({stages})  "
          f"{' and '.join(faults) or 'kept'}", flush=True)
    return not faults


def lacking(folder: Path, cases: list[Case], scale: float) -> str:
    """Why the files cannot be made or read here; empty if they can."""
    largest = max(case.count * (len(case.piece) + len(case.separator)) for case in cases) * scale
    available = int(re.search(r"MemAvailable:\s+(\d+)", Path("/proc/meminfo").read_text())[1]) * 1024
    memory = min(MOST_MEMORY, MOST_TIMES_THE_FILE * largest + BEYOND_THAT)
    if available < memory:
        return f"{memory / GB:.1f} GB of memory are needed, {available / GB:.1f} GB are available"
    # The saved posts beside the feed.
    disk = 2.5 * largest
    free = shutil.disk_usage(folder).free
    if free < disk:
        return f"{disk / GB:.1f} GB of disk are needed in {folder}, {free / GB:.1f} GB are free"
    return ""


def main() -> int:
    program = sys.argv[1]
    scale = float(sys.argv[2]) if len(sys.argv) > 2 else 1
    names = sys.argv[3:]
    cases = [case for case in CASES if not names or any(name in case.name for name in names)]
    if not cases:
        print("There is no such file.")
        return 2
    with tempfile.TemporaryDirectory(prefix="tavlo-hostile.") as name:
        folder = Path(name)
        why_not = lacking(folder, cases, scale)
        if why_not:
            print(f"This cannot be run here: {why_not}.")
            return 1
        print("user time and peak memory; in brackets the peak after each stage, in files", flush=True)
        kept = [report(program, folder, case, scale) for case in cases]
    return 0 if all(kept) else 1


if __name__ == "__main__":
    sys.exit(main())
