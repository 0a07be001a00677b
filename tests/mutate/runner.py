"""Builds the tests in a scratch copy of the project and runs them against one mutation at a time.

A mutated file is compiled to an object of its own and linked in place of the original, so the copy
never changes and mutations can be tried side by side.
"""

import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import threading
import time
from dataclasses import dataclass
from pathlib import Path

PROGRAM = "portable_tests"
# As the project's own preset for these tests has it; nothing is inlined between files.
UNITS = ["-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_UNITY_BUILD=ON",
         "-DCMAKE_UNITY_BUILD_BATCH_SIZE=0"]
MOST_MEMORY = 4 << 30  # bytes; a loop that a mutation made endless may fill it
LONGEST_WAIT = 1800  # seconds; a test that a mutation made wait for ever takes no processor time


def link_with(command, changed, output):
    """The link command with what the object `changed` defines in place of the library's own."""
    parts = list(command)
    parts[parts.index("-o") + 1] = output
    first = next(i for i, part in enumerate(parts) if part.endswith(".a") or part[:2] == "-l")
    # The library's object may hold other files, too; of what both define, the first counts.
    return parts[:first] + [changed] + parts[first:] + ["-Wl,--allow-multiple-definition"]


def first_failure(output):
    """The test that noticed, from what the test program printed."""
    failed = re.search(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    if failed:
        return failed.group(1)
    begun = re.findall(r"^\[ RUN      \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    return f"{begun[-1]} (ended)" if begun else "(ended)"


@dataclass
class Result:
    outcome: str  # killed, survived, stillborn (does not compile)
    by: str = ""
    seconds: float = 0.0


class Project:
    """A scratch copy of the project, its tests built without sanitizers."""

    def __init__(self, root, work):
        self.source = Path(work) / "source"
        self.build = Path(work) / "build"
        self.root = Path(root)
        self.costs = {}  # seconds, by filter
        self.cost_lock = threading.Lock()

    def prepare(self, jobs):
        self._copy()
        configure = ["cmake", "-S", str(self.source), "-B", str(self.build),
                     "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0",
                     "-DTONMIRA_TESTS=ON", *UNITS]
        subprocess.run(configure, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", str(self.build), "--target", PROGRAM, "-j", str(jobs)],
                       check=True, stdout=subprocess.DEVNULL)
        self._read_commands()
        link_file = next(self.build.rglob(f"{PROGRAM}.dir/link.txt"))
        self.link_folder = link_file.parent.parent.parent
        self.link_command = shlex.split(link_file.read_text().splitlines()[0])

    def _read_commands(self):
        """How each source file is compiled: as the unit that it is part of."""
        self.commands = {}
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            unit = Path(entry["file"])
            files = [unit]
            if unit.suffix == ".cxx":
                files = [Path(name) for name in re.findall(r'#include "(.*)"', unit.read_text())]
            for path in files:
                self.commands.setdefault(os.path.relpath(path, self.source), (
                    entry["directory"], shlex.split(entry["command"]), str(unit)))

    def _copy(self):
        """What git knows or would add; a file that is unchanged keeps its time."""
        listed = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=self.root, check=True, capture_output=True, text=True).stdout
        wanted = [name for name in listed.split("\0") if name and (self.root / name).is_file()]
        for old in [p for p in self.source.rglob("*") if p.is_file()]:
            if str(old.relative_to(self.source)) not in wanted:
                old.unlink()
        for name in wanted:
            old, new = self.source / name, self.root / name
            if old.exists() and old.read_bytes() == new.read_bytes():
                continue
            old.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(new, old)

    def suites(self, room):
        """The names of the test suites of a room."""
        names = set()
        for path in (self.source / "tests" / room).glob("*_test.cpp"):
            names |= set(re.findall(r"^TEST(?:_F|_P)?\((\w+),", path.read_text(), re.MULTILINE))
        return sorted(names)

    def filters(self, room):
        """Filters of the room's own tests, then of all the others."""
        own = [f"{name}.*:*/{name}.*" for name in self.suites(room)]
        return [":".join(own), "-" + ":".join(own)] if own else ["*"]

    def baseline(self):
        """The processor time of all tests without a mutation, in seconds; all must pass."""
        return self._cost("*")

    def _cost(self, tests):
        """The processor time of these tests without a mutation, in seconds."""
        with self.cost_lock:
            if tests not in self.costs:
                self.costs[tests] = self._measured(tests)
            return self.costs[tests]

    def _measured(self, tests):
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        code, output = self._run(self.link_folder / PROGRAM, tests, 600)
        if code != 0:
            raise RuntimeError(f"fails without a mutation: {first_failure(output)}")
        return resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before

    def _run(self, program, tests, limit):
        """(exit code, output); ended after `limit` seconds of processor time, however long a busy
        machine takes for them."""
        def limits():
            resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_CPU, (limit, limit + 5))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        command = [str(program), f"--gtest_filter={tests}", "--gtest_fail_fast"]
        try:
            done = subprocess.run(command, cwd=self.link_folder, preexec_fn=limits,
                                  timeout=LONGEST_WAIT, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, text=True,
                                  errors="replace", check=False)
            return done.returncode, done.stdout
        except subprocess.TimeoutExpired as over:
            return -signal.SIGXCPU, (over.stdout or b"").decode(errors="replace")

    def try_out(self, mutation, room, baseline, folder):
        """Builds the tests with one mutation and runs them until one fails."""
        begin = time.monotonic()
        folder.mkdir(parents=True, exist_ok=True)
        program = folder / "mutant"
        if not self._build(mutation, folder, program):
            return Result("stillborn", "", time.monotonic() - begin)
        for tests in self.filters(room):
            # What a room's own tests take is little, and most mutations without an end are theirs.
            cost = baseline if tests.startswith("-") else self._cost(tests)
            limit = int(5 + 3 * cost)
            code, output = self._run(program, tests, limit)
            if code == 0:
                continue
            by = first_failure(output)
            if code == -signal.SIGXCPU:
                by = by.removesuffix(" (ended)") + " (never ends)"
            return Result("killed", by, time.monotonic() - begin)
        return Result("survived", "", time.monotonic() - begin)

    def _build(self, mutation, folder, program):
        original = self.source / mutation.path
        changed = folder / original.name
        changed.write_text(mutation.apply(original.read_text()))
        directory, command, unit = self.commands[mutation.path]
        parts = [part for part in command if part != "-Werror"]
        parts[parts.index("-o") + 1] = str(folder / "mutant.o")
        parts[parts.index(unit)] = str(changed)
        parts.append("-w")
        if subprocess.run(parts, cwd=directory, capture_output=True, check=False).returncode != 0:
            return False
        link = link_with(self.link_command, str(folder / "mutant.o"), str(program))
        return subprocess.run(link, cwd=self.link_folder, capture_output=True,
                              check=False).returncode == 0
