"""Fails when a built program lacks a protection that compiler and linker can give it.

Reads the headers of the x64 and x86 programs in build/*/tonmira: address of the system's choice
(ASLR, with the relocations that it needs), 64-bit addresses for it, no execution of data, and no
library that a file beside the program could stand in for; in the machine code, that functions
check their stack.
"""

import re
import subprocess
import sys
from bisect import bisect_right
from pathlib import Path

from check_imports import PROGRAMS, PROJECT, imports

BUILDS = {"windows": "x86_64-w64-mingw32-objdump", "windows-x86": "i686-w64-mingw32-objdump"}

# The system maps these before a program's folder is looked at: they are on the list of known
# libraries of every Windows since 2000, or needed by one that is.
KNOWN_LIBRARIES = {"gdi32.dll", "kernel32.dll", "msvcrt.dll", "user32.dll"}

OVERRUN = 0xC0000409  # what platform/windows/api/stack_guard.cpp ends a program with
FEWEST_CHECKS = 3     # calls of that in the smallest program


def header_complaints(dump: str, wide: bool) -> list[str]:
    """Of what objdump -p prints."""
    wanted = {"DYNAMIC_BASE", "NX_COMPAT"} | ({"HIGH_ENTROPY_VA"} if wide else set())
    flags = set(re.findall(r"^\t{3,}\s*([A-Z_]+)$", dump, re.MULTILINE))
    complaints = [f"lacks the flag {flag}" for flag in sorted(wanted - flags)]
    size = re.search(r"^Entry 5 [0-9a-f]+ ([0-9a-f]+) Base Relocation", dump, re.MULTILINE)
    blocks = re.findall(r"^Virtual Address: [0-9a-f]+ Chunk size \d+ \(0x[0-9a-f]+\) "
                        r"Number of fixups (\d+)", dump, re.MULTILINE)
    if re.search(r"^\s+relocations stripped$", dump, re.MULTILINE):
        complaints.append("its relocations were stripped")
    if not size or int(size[1], 16) == 0 or sum(map(int, blocks)) == 0:
        complaints.append("has no relocations")
    return complaints


def library_complaints(dump: str) -> list[str]:
    libraries = {library for library, _ in imports(dump)}
    return [f"loads {name} at its start, which a file beside it could stand in for"
            for name in sorted(libraries - KNOWN_LIBRARIES)]


def stack_checks(code: str) -> int:
    """How many calls there are of the function that ends the program with OVERRUN, in what
    objdump -d prints."""
    lines = re.findall(r"^\s*([0-9a-f]+):\t(.*)$", code, re.MULTILINE)
    calls = [int(match[1], 16) for _, text in lines
             if (match := re.search(r"call\S*\s+(?:0x)?([0-9a-f]+)\b", text))]
    ends = [int(address, 16) for address, text in lines if f"$0x{OVERRUN:x}" in text]
    starts = sorted(set(calls))
    functions = {starts[at - 1] for end in ends if (at := bisect_right(starts, end))}
    return sum(call in functions for call in calls)


def dump_of(objdump: str, option: str, program: Path) -> str:
    return subprocess.run([objdump, option, program], check=True, stdout=subprocess.PIPE,
                          text=True).stdout


def check(build: str, name: str) -> list[str]:
    objdump, program = BUILDS[build], PROJECT / "build" / build / "tonmira" / name
    dump = dump_of(objdump, "-p", program)
    checks = stack_checks(dump_of(objdump, "-d", program))
    complaints = header_complaints(dump, wide=build == "windows") + library_complaints(dump)
    if checks < FEWEST_CHECKS:
        complaints.append(f"checks its stack in {checks} places")
    print(f"{build} {name}: {checks} stack checks")
    return [f"{build} {name}: {complaint}" for complaint in complaints]


def main() -> int:
    complaints = [complaint for build in BUILDS for name in PROGRAMS
                  for complaint in check(build, name)]
    for complaint in complaints:
        print(complaint)
    print(f"{len(BUILDS) * len(PROGRAMS)} programs, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
