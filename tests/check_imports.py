"""Fails when an i686 program imports anything that Windows 2000 does not have.

Reads the import tables of the programs in build/windows-x86/tonmira and compares them with the
written list nt5_imports.txt; also reads the lowest system version that each file's header asks for.
"""

import re
import subprocess
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
FOLDER = PROJECT / "build" / "windows-x86" / "tonmira"
PROGRAMS = ["tonmira.exe", "play16.exe", "tone16.dll", "tone32.dll", "upsend.exe", "hearage.dll",
            "tnf.exe"]
LIST = PROJECT / "tests" / "nt5_imports.txt"
OBJDUMP = "i686-w64-mingw32-objdump"


def allowed_imports(text: str) -> set[tuple[str, str]]:
    allowed, library = set(), ""
    for line in text.splitlines():
        if line.startswith("["):
            library = line.strip("[] ").lower()
        elif not line.startswith("#"):
            allowed |= {(library, name) for name in line.split()}
    return allowed


def imports(dump: str) -> set[tuple[str, str]]:
    """Library and function of every entry in what objdump -p prints."""
    found, library = set(), ""
    for line in dump.splitlines():
        if match := re.match(r"\s*DLL Name: (\S+)", line):
            library = match[1].lower()
        elif library and (match := re.match(r"\t[0-9a-f]+\t\s*\d+ +(\S+)", line)):
            found.add((library, match[1]))
    return found


def subsystem_version(dump: str) -> tuple[int, int]:
    numbers = [re.search(rf"^{part}SubsystemVersion\s+(\d+)", dump, re.MULTILINE)
               for part in ("Major", "Minor")]
    if not all(numbers):
        raise ValueError("no subsystem version in the header")
    major, minor = (int(number[1]) for number in numbers if number)
    return major, minor


def check(name: str, allowed: set[tuple[str, str]]) -> list[str]:
    """What is to be complained of about a program."""
    dump = subprocess.run([OBJDUMP, "-p", FOLDER / name], check=True, stdout=subprocess.PIPE,
                          text=True).stdout
    found = imports(dump)
    version = subsystem_version(dump)
    complaints = [f"{name}: {library} {function} is not known to be in Windows 2000"
                  for library, function in sorted(found - allowed)]
    if len(found) < 20:
        complaints.append(f"{name}: only {len(found)} imports were read: is the table understood?")
    if version > (5, 0):
        complaints.append(f"{name}: the header asks for system version {version[0]}.{version[1]}")
    print(f"{name}: {len(found)} imports of {len({library for library, _ in found})} libraries")
    return complaints


def main() -> int:
    allowed = allowed_imports(LIST.read_text())
    complaints = [complaint for name in PROGRAMS for complaint in check(name, allowed)]
    for complaint in complaints:
        print(complaint)
    print(f"{len(PROGRAMS)} programs, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
