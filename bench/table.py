#!/usr/bin/env python3
"""Prints what bench/run has measured as one table of ratios, and how the operations grow.

usage: table.py FOLDER [--judge]

With --judge, exits with 1 if a ratio is over its limit.
"""

import json
import sys
from dataclasses import dataclass
from pathlib import Path

MILLI = 1e3
MIB = 1 << 20


@dataclass(frozen=True)
class Row:
    what: str
    measured: str
    floor: str
    value: float
    limit: float

    @property
    def kept(self) -> bool:
        return self.value <= self.limit


OPERATIONS = [
    # what, its benchmark, its floor's, at most so many times the floor
    ("generateRSSFeed", "feed", "feedFloor", 3.0),
    ("importRSSFeed, to records", "import", "importFloor", 1.5),
    ("savePosts", "save", "saveFloor", 3.0),
    ("loadPosts", "load", "loadFloor", 2.0),
    ("comparing lists, one insertion", "listInsertion", "listFloor", 3.0),
    ("comparing lists, one change", "listChange", "listFloor", 3.0),
    ("comparing lists, one removal", "listRemoval", "listFloor", 3.0),
]


def milliseconds(seconds: float) -> str:
    return f"{seconds * MILLI:.3g} ms"


def mebibytes(size: float) -> str:
    return f"{size / MIB:.1f} MiB"


def times_of_operations(path: Path) -> dict[tuple[str, int], float]:
    """The median seconds of each benchmark at each size."""
    report = json.loads(path.read_text())
    runs: dict[tuple[str, int], list[float]] = {}
    for run in report["benchmarks"]:
        if run.get("error_occurred"):
            raise SystemExit(f"{run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            name, size = run["name"].split("/")[:2]
            runs.setdefault((name, int(size)), []).append(run["real_time"] * 1e-9)
    return {key: sorted(times)[len(times) // 2] for key, times in runs.items()}


def rows_of_operations(times: dict[tuple[str, int], float]) -> list[Row]:
    size = max(size for _, size in times)
    rows = []
    for what, name, floor_name, limit in OPERATIONS:
        time, floor = times[name, size], times[floor_name, size]
        rows.append(Row(what, milliseconds(time), milliseconds(floor), time / floor, limit))
    return rows


def rows_of_window(path: Path) -> list[Row]:
    few, many = (json.loads(line) for line in path.read_text().splitlines())
    rows = [Row(what, milliseconds(many[name]), milliseconds(many["save"]),
                many[name] / many["save"], 1.2)
            for what, name in (("adding a post, to its first frame", "add"),
                               ("changing a post", "change"), ("deleting a post", "remove"))]
    rows.append(Row(f"page down, to that with {few['posts']} posts", milliseconds(many["pageDown"]),
                    milliseconds(few["pageDown"]), many["pageDown"] / few["pageDown"], 1.5))
    screens = many["mostScreensOfCards"]
    rows.append(Row("cards alive, in screens", f"{screens:.2f}", "1", screens, 3))
    return rows


def rows_of_program(path: Path) -> list[Row]:
    costs = json.loads(path.read_text())
    bare, empty, full = costs["bare"], costs["empty"], costs["full"]
    most_start = 1.3 * bare["start"] + 1.2 * costs["load"]
    more_memory = full["memory"] - empty["memory"]
    return [
        Row("start to first frame, no posts", milliseconds(empty["start"]),
            milliseconds(bare["start"]), empty["start"] / bare["start"], 1.3),
        Row("start, all posts, to 1.3 bare and 1.2 load", milliseconds(full["start"]),
            milliseconds(most_start), full["start"] / most_start, 1),
        Row("memory, no posts", mebibytes(empty["memory"]), mebibytes(bare["memory"]),
            empty["memory"] / bare["memory"], 1.4),
        Row("memory of all posts, to posts.json", mebibytes(more_memory),
            mebibytes(costs["file"]), more_memory / costs["file"], 3),
        Row("idle: context switches beyond the bare ones", str(empty["switches"]),
            str(bare["switches"]), empty["switches"] - bare["switches"], 2),
        Row("idle, all posts: the same", str(full["switches"]), str(bare["switches"]),
            full["switches"] - bare["switches"], 2),
        Row("idle: frames drawn", str(max(empty["frames"], full["frames"])), "0",
            max(empty["frames"], full["frames"]), 0),
    ]


def print_table(rows: list[Row]) -> None:
    print(f"| {'what':43} | {'measured':>10} | {'floor':>10} | {'ratio':>6} | {'at most':>7} |      |")
    print(f"|{'-' * 45}|{'-' * 11}:|{'-' * 11}:|{'-' * 7}:|{'-' * 8}:|------|")
    for row in rows:
        print(f"| {row.what:43} | {row.measured:>10} | {row.floor:>10} | {row.value:6.2f} | "
              f"{row.limit:7g} | {'kept' if row.kept else 'over'} |")


def print_growth(times: dict[tuple[str, int], float]) -> None:
    sizes = sorted({size for _, size in times})
    print("\nmicroseconds a post, and in brackets the ratio to the floor\n")
    print(f"| {'posts':31} | " + " | ".join(f"{size:>13}" for size in sizes) + " |")
    print(f"|{'-' * 33}|" + f"{'-' * 14}:|" * len(sizes))
    for what, name, floor_name, _ in OPERATIONS:
        cells = [f"{times[name, size] * 1e6 / size:.3g} ({times[name, size] / times[floor_name, size]:.2f})"
                 for size in sizes]
        print(f"| {what:31} | " + " | ".join(f"{cell:>13}" for cell in cells) + " |")


def main() -> int:
    folder, judge = Path(sys.argv[1]), "--judge" in sys.argv[2:]
    times = times_of_operations(folder / "operations.json")
    rows = (rows_of_operations(times) + rows_of_window(folder / "window.json")
            + rows_of_program(folder / "program.json"))
    print_table(rows)
    print_growth(times)
    return 1 if judge and not all(row.kept for row in rows) else 0


if __name__ == "__main__":
    sys.exit(main())
