"""Fails when the i686 program imports anything that Windows 2000 does not have.

Reads the import table of build/windows-x86/tonmira/tonmira.exe and compares it with the written
list nt5_imports.txt; also reads the lowest system version that the file's header asks for.
"""

import re
import subprocess
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
PROGRAM = PROJECT / "build" / "windows-x86" / "tonmira" / "tonmira.exe"
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


def main() -> int:
    dump = subprocess.run([OBJDUMP, "-p", PROGRAM], check=True, stdout=subprocess.PIPE,
                          text=True).stdout
    found = imports(dump)
    version = subsystem_version(dump)
    complaints = [f"{library} {name} is not known to be in Windows 2000"
                  for library, name in sorted(found - allowed_imports(LIST.read_text()))]
    if len(found) < 20:
        complaints.append(f"only {len(found)} imports were read: is the table understood?")
    if version > (5, 0):
        complaints.append(f"the header asks for system version {version[0]}.{version[1]}")
    for complaint in complaints:
        print(complaint)
    print(f"{len(found)} imports of {len({library for library, _ in found})} libraries, "
          f"{len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
