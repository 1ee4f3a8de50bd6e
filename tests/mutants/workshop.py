"""A copy of the sources, where they are built and tested while something is wrong with them."""

import json
import os
import resource
import shutil
import subprocess
import time
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

LEFT_BEHIND = {".git", "build", "__pycache__"}

# A mutant that asks for memory without end is stopped here.
MOST_MEMORY = 6 << 30

# Slow on a busy machine is not endless.
LEAST_TIMEOUT = 20
TIMES_THE_USUAL = 10

TEST_FOLDERS = ("model", "rss", "faults")

# Of properties: the same cases each time, fewer than a test has of itself, and the first that fails is enough.
PROPERTIES = "seed=1 max_success=30 noshrink=1"


@dataclass
class Test:
    name: str
    command: list[str]
    target: str
    seconds: float = 0.0  # on the sources as they are


@dataclass(frozen=True)
class Run:
    passed: bool
    how: str  # it ended
    seconds: float
    output: str


class Workshop:
    """What a build there makes is kept from one run to the next."""

    def __init__(self, root: Path, folder: Path) -> None:
        self.root = root
        self.sources = folder / "sources"
        self.built = folder / "built"
        self._tests: list[Test] = []
        # Code with precompiled headers is found again only if ccache may believe what these were made from.
        os.environ["CCACHE_SLOPPINESS"] = "pch_defines,time_macros"

    def file(self, name: str) -> Path:
        return self.sources / name

    def prepare(self) -> None:
        """Brings the copy up to date and builds the core and its tests; all of them must pass."""
        self._copy_sources()
        precompiled = Path(__file__).parent / "precompiled.cmake"
        self._call("cmake", "-S", self.sources, "-B", self.built, "-G", "Ninja",
                   "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -D_GLIBCXX_ASSERTIONS",
                   "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DTAVLO_COMPILE_QML=OFF", "-DBUILD_TESTING=ON",
                   f"-DCMAKE_PROJECT_Tavlo_INCLUDE={precompiled}",
                   *(["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []))
        self._tests = list(self._read_tests())
        self._call("cmake", "--build", self.built, "--target", *{test.target for test in self._tests})
        for test in self._tests:
            run = self._run(test, 600)
            if not run.passed:
                raise SystemExit(f"{test.name} does not pass as it is ({run.how}):\n{run.output}")
            test.seconds = run.seconds

    def tests(self) -> list[Test]:
        return self._tests

    def builds(self, target: str) -> bool:
        # What mutants leave is of no use to later builds.
        result = subprocess.run(["cmake", "--build", self.built, "--target", target], check=False,
                                env=os.environ | {"CCACHE_READONLY": "1"},
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return result.returncode == 0

    def run(self, test: Test) -> Run:
        return self._run(test, max(LEAST_TIMEOUT, TIMES_THE_USUAL * test.seconds))

    def _run(self, test: Test, timeout: float) -> Run:
        start = time.monotonic()
        try:
            result = subprocess.run(self._shut_in(test.command), timeout=timeout, check=False, text=True,
                                    errors="replace", preexec_fn=limit_memory,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        except subprocess.TimeoutExpired:
            return Run(False, "out of time", time.monotonic() - start, "")
        how = "passed" if result.returncode == 0 else f"exit status {result.returncode}"
        return Run(result.returncode == 0, how, time.monotonic() - start, result.stdout)

    def _shut_in(self, command: list[str]) -> list[str]:
        """The command where it can do no harm, whatever path a mutant comes upon: the file system can only be
        read, the temporary folder is its own, and what it has started ends with it."""
        return ["bwrap", "--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc", "--tmpfs", "/tmp",
                "--ro-bind", self.sources, self.sources, "--ro-bind", self.built, self.built,
                "--unshare-pid", "--unshare-net", "--unshare-ipc", "--die-with-parent", "--new-session",
                "--setenv", "TMPDIR", "/tmp", "--setenv", "GTEST_FAIL_FAST", "1",
                "--setenv", "RC_PARAMS", PROPERTIES, *command]

    def _read_tests(self) -> Iterator[Test]:
        for folder in TEST_FOLDERS:
            listing = subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.built / "tests" / folder,
                                     check=True, stdout=subprocess.PIPE)
            for entry in json.loads(listing.stdout)["tests"]:
                # What wants the machine for itself measures time, which is not a mutant's alone here.
                if {"name": "RUN_SERIAL", "value": True} in entry["properties"]:
                    continue
                programs = [Path(word).name for word in entry["command"] if word.startswith(f"{self.built}/bin/")]
                yield Test(entry["name"], entry["command"], programs[0])

    def _copy_sources(self) -> None:
        """Only files that differ are written, so that only these are built again."""
        wanted = set()
        for folder, folders, names in os.walk(self.root):
            folders[:] = [name for name in folders if name not in LEFT_BEHIND]
            for name in names:
                original = Path(folder, name)
                wanted.add(original.relative_to(self.root))
                copy = self.sources / original.relative_to(self.root)
                if not copy.exists() or copy.read_bytes() != original.read_bytes():
                    copy.parent.mkdir(parents=True, exist_ok=True)
                    copy.write_bytes(original.read_bytes())
                    shutil.copymode(original, copy)
        for copy in list(self.sources.rglob("*")):
            if copy.is_file() and copy.relative_to(self.sources) not in wanted:
                copy.unlink()

    def _call(self, *command: object) -> None:
        subprocess.run([str(word) for word in command], check=True, stdout=subprocess.DEVNULL)


def limit_memory() -> None:
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
