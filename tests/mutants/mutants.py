"""Changes one operator, constant or statement of the core at a time, and sees whether a test notices.

usage: mutants.py ROOT FOLDER [--seed N] [--count N] [--again]
"""

import argparse
import hashlib
import json
import re
import sys
import time
from collections import Counter
from dataclasses import dataclass
from difflib import SequenceMatcher
from functools import cache
from pathlib import Path

from cpptokens import tokens_of
from mutations import Mutation, mutations_of
from workshop import TEST_FOLDERS, Test, Workshop

LEAST_CAUGHT = 0.90

code_of = cache(tokens_of)


@dataclass(frozen=True)
class Mutant:
    file: str
    source: str
    mutation: Mutation

    @property
    def line(self) -> int:
        return self.source.count("\n", 0, self.mutation.start) + 1

    def key(self) -> str:
        """The same as long as its file's code stays as it is; comments and inclusions may change."""
        tokens = code_of(self.source)
        place = [sum(token.start < offset for token in tokens) for offset in (self.mutation.start, self.mutation.end)]
        change = (self.file, [token.text for token in tokens], place, self.mutation.replacement)
        return hashlib.sha256(repr(change).encode()).hexdigest()

    def describe(self) -> str:
        before, after = self.source, self.mutation.of(self.source)
        begin = before.rfind("\n", 0, self.mutation.start) + 1
        old = before[begin:before.find("\n", self.mutation.end)]
        new = after[begin:after.find("\n", self.mutation.start + len(self.mutation.replacement))]
        lines = [f"{self.file}:{self.line}: {self.mutation.what}"]
        lines += [f"  - {line.strip()}" for line in old.split("\n")]
        lines += [f"  + {line.strip()}" for line in new.split("\n")]
        return "\n".join(lines)


def all_mutants(root: Path) -> list[Mutant]:
    files = [path for folder in ("model", "rss") for path in sorted((root / folder).iterdir())
             if path.suffix in (".cpp", ".h")]
    return [Mutant(str(path.relative_to(root)), source, mutation)
            for path in files for source in [path.read_text()] for mutation in mutations_of(source)]


def shuffled(mutants: list[Mutant], seed: int) -> list[Mutant]:
    """In an order that hangs on the seed and on each mutant's own line: what changes elsewhere in the sources
    leaves the other mutants where they are."""
    seen: Counter[tuple] = Counter()
    ranks = {}
    for mutant in mutants:
        begin = mutant.source.rfind("\n", 0, mutant.mutation.start) + 1
        line = mutant.source[begin:mutant.source.find("\n", begin)]
        place = (mutant.file, line, mutant.mutation.start - begin, mutant.mutation.what, mutant.mutation.replacement)
        seen[place] += 1
        ranks[mutant] = hashlib.sha256(repr((seed, place, seen[place])).encode()).digest()
    return sorted(mutants, key=ranks.__getitem__)


class Ledger:
    """What became of each mutant, kept on disk, so that a run goes on where another was stopped.

    A mutant that was caught stays so until its file's code changes; one that survived is tried again once the tests
    have changed.
    """

    def __init__(self, file: Path, tests: str) -> None:
        self._file = file
        self._tests = tests
        self._outcomes = {}
        if file.exists():
            for line in file.read_text().splitlines():
                entry = json.loads(line)
                self._outcomes[entry["mutant"]] = entry

    def outcome(self, mutant: Mutant) -> str | None:
        entry = self._outcomes.get(mutant.key(), {"outcome": None})
        if entry["outcome"] == "survived" and entry["tests"] != self._tests:
            return None
        return entry["outcome"]

    def note(self, mutant: Mutant, outcome: str) -> None:
        entry = {"mutant": mutant.key(), "outcome": outcome, "tests": self._tests}
        self._outcomes[mutant.key()] = entry
        with self._file.open("a") as file:
            file.write(json.dumps(entry) + "\n")


def digest_of_tests(root: Path) -> str:
    digest = hashlib.sha256()
    for folder in (*TEST_FOLDERS, "support", "references", "data"):
        for path in sorted((root / "tests" / folder).rglob("*")):
            if path.is_file():
                digest.update(path.read_bytes())
    return digest.hexdigest()


def in_order(tests: list[Test], file: str) -> list[Test]:
    """First the tests that are called like the file, then the quick ones."""
    words = re.sub(r"(?<=[a-z\d])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", Path(file).stem).lower()

    def likeness(test: Test) -> float:
        return SequenceMatcher(None, words, test.name.removeprefix("test_")).ratio()

    likely = [test for test in sorted(tests, key=likeness, reverse=True) if likeness(test) > 0.6]
    return likely + sorted((test for test in tests if test not in likely), key=lambda test: test.seconds)


def outcome_of(mutant: Mutant, workshop: Workshop) -> str:
    file = workshop.file(mutant.file)
    file.write_text(mutant.mutation.of(mutant.source))
    try:
        if not workshop.builds("tavlo_core"):
            return "not compiled"
        for test in in_order(workshop.tests(), mutant.file):
            if not workshop.builds(test.target):
                return f"caught as {test.target} is compiled"
            run = workshop.run(test)
            if not run.passed:
                return f"caught by {test.name}, {run.how}"
        return "survived"
    finally:
        file.write_text(mutant.source)


def try_mutants(mutants: list[Mutant], count: int, workshop: Workshop, ledger: Ledger) -> dict[Mutant, str]:
    """The first so many that compile."""
    outcomes: dict[Mutant, str] = {}
    for mutant in mutants:
        if len(outcomes) == count:
            break
        start = time.monotonic()
        known = ledger.outcome(mutant)
        outcome = known or outcome_of(mutant, workshop)
        if not known:
            ledger.note(mutant, outcome)
        if outcome != "not compiled":
            outcomes[mutant] = outcome
            print(f"{len(outcomes):4} {time.monotonic() - start:6.1f} s  {mutant.file}:{mutant.line} "
                  f"{mutant.mutation.what}: {outcome}", flush=True)
    return outcomes


def report(outcomes: dict[Mutant, str], seed: int) -> bool:
    survivors = [mutant for mutant, outcome in outcomes.items() if outcome == "survived"]
    print(f"\n{'file':<32} {'mutants':>8} {'caught':>8}")
    for file, number in sorted(Counter(mutant.file for mutant in outcomes).items()):
        alive = sum(mutant.file == file for mutant in survivors)
        print(f"{file:<32} {number:>8} {number - alive:>8}")
    caught = len(outcomes) - len(survivors)
    share = caught / len(outcomes)
    print(f"{'together':<32} {len(outcomes):>8} {caught:>8}   {share:.1%}, at least {LEAST_CAUGHT:.0%} are wanted; "
          f"seed {seed}\n")
    for mutant in sorted(survivors, key=lambda mutant: (mutant.file, mutant.line)):
        print(f"survived: {mutant.describe()}")
    return share >= LEAST_CAUGHT


def main() -> int:
    parser = argparse.ArgumentParser(prog="tests/mutants/run")
    parser.add_argument("root", type=Path)
    parser.add_argument("folder", type=Path)
    parser.add_argument("--seed", type=int, default=1, help="which sample of all mutants (1)")
    parser.add_argument("--count", type=int, default=200, help="how many mutants (200)")
    parser.add_argument("--again", action="store_true", help="forget what earlier runs have found")
    options = parser.parse_args()

    options.folder.mkdir(parents=True, exist_ok=True)
    results = options.folder / "results.jsonl"
    if options.again:
        results.unlink(missing_ok=True)
    workshop = Workshop(options.root, options.folder)
    workshop.prepare()
    mutants = all_mutants(workshop.sources)
    print(f"{options.count} of {len(mutants)} mutants, seed {options.seed}", flush=True)
    ledger = Ledger(results, digest_of_tests(workshop.sources))
    outcomes = try_mutants(shuffled(mutants, options.seed), options.count, workshop, ledger)
    return 0 if report(outcomes, options.seed) else 1


if __name__ == "__main__":
    sys.exit(main())
