#!/usr/bin/env python3
"""Starts the program and a bare window in turn, and prints what each costs as one JSON object:
seconds from the start to the first frame, bytes of memory (PSS) five seconds later, and over ten
idle seconds the times that a thread gave up the processor and the frames that were drawn.

usage: measure.py FOLDER-OF-PROGRAMS POSTS REPETITIONS
"""

import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

SETTLING_SECONDS = 5
IDLE_SECONDS = 10
MOST_SECONDS = 120

# What Qt's scene graph says of each frame, once it is on the screen.
FRAME = "frame rendered"


@dataclass
class Costs:
    """Of one program: all its starts, and one watch."""

    starts: list[float] = field(default_factory=list)
    memory: int = 0
    switches: int = 0
    frames: int = 0

    def summary(self) -> dict:
        return {"start": statistics.median(self.starts), "memory": self.memory,
                "switches": self.switches, "frames": self.frames}


class Running:
    """A program from its start to its first frame and on."""

    def __init__(self, program: Path, home: Path, log: Path):
        environment = {key: value for key, value in os.environ.items()
                       if not key.startswith(("QT_", "QML", "QSG_", "XDG_"))}
        runtime = home / "runtime"
        runtime.mkdir(mode=0o700, exist_ok=True)
        environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(runtime),
                        "XDG_CONFIG_HOME": str(home / ".config"),
                        "XDG_CACHE_HOME": str(home / ".cache"), "QT_QPA_PLATFORM": "xcb",
                        "QT_FORCE_STDERR_LOGGING": "1",
                        "QT_LOGGING_RULES": "qt.scenegraph.time.renderloop.debug=true"}
        self.log = log
        self.begin = time.monotonic()
        with log.open("wb") as output:
            self.process = subprocess.Popen([program], env=environment, cwd=home, stderr=output)

    def seconds_to_first_frame(self) -> float:
        while self.frames() == 0:
            if self.process.poll() is not None or time.monotonic() - self.begin > MOST_SECONDS:
                raise SystemExit(f"{self.process.args[0]} has shown nothing: {self.log.read_text()}")
            time.sleep(0.001)
        return time.monotonic() - self.begin

    def frames(self) -> int:
        return self.log.read_text().count(FRAME)

    def memory(self) -> int:
        rollup = Path(f"/proc/{self.process.pid}/smaps_rollup").read_text()
        return int(re.search(r"^Pss:\s+(\d+) kB$", rollup, re.MULTILINE)[1]) * 1024

    def switches(self) -> int:
        tasks = Path(f"/proc/{self.process.pid}/task").iterdir()
        return sum(int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)$",
                                 (task / "status").read_text(), re.MULTILINE)[1]) for task in tasks)

    def end(self) -> None:
        self.process.kill()
        self.process.wait()


def watch(running: Running, costs: Costs) -> None:
    time.sleep(SETTLING_SECONDS)
    costs.memory = running.memory()
    switches, frames = running.switches(), running.frames()
    time.sleep(IDLE_SECONDS)
    costs.switches = running.switches() - switches
    costs.frames = running.frames() - frames


def main() -> int:
    folder, posts, repetitions = Path(sys.argv[1]), sys.argv[2], int(sys.argv[3])
    with tempfile.TemporaryDirectory(prefix="tavlo-bench.") as name:
        homes = {kind: Path(name) / kind for kind in ("bare", "empty", "full")}
        for home in homes.values():
            home.mkdir()
        blog = homes["full"] / "posts.json"
        with blog.open("wb") as file:
            subprocess.run([folder / "tavlo_sample_posts", posts], stdout=file, check=True)

        programs = {"bare": "tavlo_bare_window", "empty": "tavlo", "full": "tavlo"}
        costs = {kind: Costs() for kind in programs}
        loads = []
        # One start of each that does not count fills the caches. Then each in turn, so that a
        # change of the machine's pace hits all alike; the last of each is watched.
        for turn in range(repetitions + 1):
            for kind, program in programs.items():
                running = Running(folder / program, homes[kind], Path(name) / "log")
                try:
                    seconds = running.seconds_to_first_frame()
                    if turn > 0:
                        costs[kind].starts.append(seconds)
                    if turn == repetitions:
                        watch(running, costs[kind])
                finally:
                    running.end()
            loads.append(float(subprocess.run([folder / "tavlo_store_start"], check=True, text=True,
                                              env=os.environ | {"HOME": str(homes["full"])},
                                              stdout=subprocess.PIPE).stdout))
        print(json.dumps({kind: cost.summary() for kind, cost in costs.items()}
                         | {"load": statistics.median(loads[1:]), "file": blog.stat().st_size}))
    return 0


if __name__ == "__main__":
    sys.exit(main())
