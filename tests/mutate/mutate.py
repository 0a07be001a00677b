#!/usr/bin/env python3
"""Do the portable tests notice when the portable code is wrong?

Changes one operator, constant or call at a time, builds and runs the portable tests, and reports
the changes that no test notices. The choice of changes depends on the seed alone. It takes a
while, so it is no part of ./test: run it after larger changes of code or tests.

    tests/mutate/mutate.py --count 160 --seed 1
    tests/mutate/mutate.py --only app/form1_play.cpp:30:12:operator

A change that alters nothing that anybody can see survives rightly; those that were looked at and
found so stand in equivalent.txt with the reason, each as the line as it would read.
"""

import argparse
import random
import sys
from concurrent.futures import ThreadPoolExecutor, as_completed
from pathlib import Path

import mutations
import runner

ROOT = Path(__file__).resolve().parents[2]
ROOMS = ("base ui platform tone settings lang morse program_files display online about app hearing "
         "helpers tools").split()


def room_of(path):
    return path.split("/")[0]


def candidates(project, rooms):
    """The mutations of every portable source file that the tests link, by room."""
    found = {}
    for room in rooms:
        for path in sorted((project.source / room).glob("*.cpp")):
            name = str(path.relative_to(project.source))
            if name in project.commands:
                found.setdefault(room, []).extend(mutations.find(name, path.read_text()))
    return found


def changed_line(project, mutation):
    """The line of the source as it would read."""
    source = mutation.apply((project.source / mutation.path).read_text())
    return source.splitlines()[mutation.line - 1].strip()


def known_equivalents():
    """(file, line as it would read) of the changes that nobody can see."""
    path = Path(__file__).with_name("equivalent.txt")
    known = set()
    for line in path.read_text().splitlines() if path.exists() else []:
        if line.strip() and not line.startswith((" ", "#")):
            name, text = line.split(": ", 1)
            known.add((name, text.strip()))
    return known


class Run:
    def __init__(self, project, jobs):
        self.project = project
        self.jobs = jobs
        self.baseline = project.baseline()
        self.known = known_equivalents()
        self.results = []

    def try_all(self, tasks):
        """`tasks`: (mutation, spare mutations that stand in for one that does not compile)."""
        folders = [self.project.build / "mutants" / str(i) for i in range(self.jobs)]

        def work(task):
            first, spare = task
            folder = folders.pop()
            try:
                mutation = first
                while True:
                    room = room_of(mutation.path)
                    result = self.project.try_out(mutation, room, self.baseline, folder)
                    if result.outcome != "stillborn" or not spare:
                        return mutation, result
                    mutation = spare.pop(0)
            finally:
                folders.append(folder)

        with ThreadPoolExecutor(self.jobs) as pool:
            for done in as_completed([pool.submit(work, task) for task in tasks]):
                self._note(*done.result())

    def _note(self, mutation, result):
        if result.outcome == "survived" and (
                mutation.path, changed_line(self.project, mutation)) in self.known:
            result.outcome = "equivalent"
        self.results.append((mutation, result))
        print(f"{result.outcome:10} {result.seconds:5.1f} s  {mutation.name}  {result.by}")
        if result.outcome == "survived":
            print(f"           now: {changed_line(self.project, mutation)}")
        sys.stdout.flush()

    def summary(self):
        tried = [(m, r) for m, r in self.results if r.outcome != "stillborn"]
        rooms = sorted({room_of(m.path) for m, _ in tried})
        lines = ["room            tried  killed  equivalent  survived"]
        for room in rooms + ["all"]:
            outcomes = [r.outcome for m, r in tried if room in ("all", room_of(m.path))]
            lines.append(f"{room:15} {len(outcomes):5} {outcomes.count('killed'):7} "
                         f"{outcomes.count('equivalent'):11} {outcomes.count('survived'):9}")
        return "\n".join(lines)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=160, help="how many mutations")
    parser.add_argument("--least", type=int, default=5, help="at least so many of every room")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--room", action="append", choices=ROOMS, help="only of these rooms")
    parser.add_argument("--only", action="append", help="mutations by the names that runs print")
    parser.add_argument("--list", action="store_true", help="print the choice, try nothing")
    parser.add_argument("--work", default=str(ROOT / "build" / "mutate"), help="scratch folder")
    return parser.parse_args()


def main():
    chosen_options = arguments()
    project = runner.Project(ROOT, chosen_options.work)
    project.prepare(chosen_options.jobs)
    found = candidates(project, chosen_options.room or ROOMS)
    if chosen_options.only:
        tasks = [(m, []) for room in found.values() for m in room if m.name in chosen_options.only]
    else:
        chosen, spare = mutations.choose(found, chosen_options.count, chosen_options.least,
                                         random.Random(chosen_options.seed))
        tasks = [(m, spare[room][i::len(chosen[room])])
                 for room in chosen for i, m in enumerate(chosen[room])]
        random.Random(chosen_options.seed).shuffle(tasks)
    if chosen_options.list:
        print("\n".join(mutation.name for mutation, _ in tasks))
        return 0
    run = Run(project, chosen_options.jobs)
    run.try_all(tasks)
    print(run.summary())
    return 1 if any(r.outcome == "survived" for _, r in run.results) else 0


if __name__ == "__main__":
    sys.exit(main())
