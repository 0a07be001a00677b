"""Fails when a room includes what it may not: the borders of docs/architecture.md as a table."""

import re
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]

# Room -> the rooms below it. Every room may include itself.
SERVICES = {"base", "ui", "platform"}
SUBSYSTEMS = {
    "lang": set(),
    "settings": {"lang"},
    "tone": {"lang", "settings"},
    "morse": {"lang", "settings", "tone"},
    "program_files": {"lang", "settings", "tone"},
    "display": {"settings"},
    "online": {"lang", "settings"},
    "about": {"lang"},
}
APP = SERVICES | set(SUBSYSTEMS)
SIMULATION = {"platform/simulated"}
WINDOWS_ROOMS = {
    "api": set(),
    "system": {"api"},
    "web": {"api", "system"},
    "views": {"api", "web"},
    "sound": {"api", "views"},
}
COMPANION = {"tools/posix", "tools/windows"}
NATIVE = {f"platform/windows/{room}" for room in WINDOWS_ROOMS}

# The tests of a room know what it knows, the simulation, and the tests of the rooms below. So each
# room can be tried without the ones above it; what several do together is tried in tests/app.
TESTED = {
    "base": set(),
    "ui": {"base"},
    "platform": {"base", "ui"},
    **{room: SERVICES | below for room, below in SUBSYSTEMS.items()},
    "app": APP,
    "hearing": SERVICES,
    "helpers": {"base", "tone"},
    "tools": {"base", "tone", "morse", "program_files"},
}
ALLOWED = {
    "base": set(),
    "ui": {"base"},
    "platform": {"base", "ui"},
    **{f"platform/windows/{room}": SERVICES | {f"platform/windows/{other}" for other in below}
       for room, below in WINDOWS_ROOMS.items()},
    "platform/windows": SERVICES | NATIVE,
    "platform/simulated": SERVICES,
    **{room: SERVICES | below for room, below in SUBSYSTEMS.items()},
    "app": APP,
    "hearing": SERVICES,
    "main.cpp": APP | {"app", "platform/windows"},
    "helpers": {"base", "tone", "platform/windows/api"},
    "helpers/hearage": SERVICES | NATIVE | {"helpers", "hearing", "platform/windows"},
    "tools": {"base", "tone", "morse", "program_files"},
    **{room: {"tools"} for room in COMPANION},
    **{f"tests/{room}": {room} | below | {f"tests/{other}" for other in below} | SIMULATION
       for room, below in TESTED.items()},
    "tests/fuzz": {"base", "hearing", "helpers", "lang", "online", "program_files", "settings",
                   "tone", "tools", "tests/program_files"},
    "tests/rig": set(),
    # They may stand in for the system around a part of the program.
    "tests/rig/bare": {"platform/windows/api", "platform/windows/web"},
    "bench": APP | {"app"} | {f"tests/{room}" for room in TESTED} | SIMULATION,
}

# Single headers of a higher room that a lower one may include as well.
SHARED_HEADERS = {"helpers": {"online/addresses.h"}}

# Where the Windows API may be used.
WINDOWS = NATIVE | {"platform/windows", "main.cpp", "helpers", "helpers/hearage", "tools/windows",
                    "tests/rig", "tests/rig/bare"}

# Beside the C++ standard library's headers.
FURTHER_HEADERS = {
    **{f"tests/{room}": {"gtest/gtest.h", "gmock/gmock.h", "quadmath.h"} for room in TESTED},
    "bench": {"benchmark/benchmark.h"},
    "tools": {"CLI/CLI.hpp"},
    "tools/posix": {"sys/stat.h", "unistd.h"},
}
STANDARD_HEADER = re.compile("[a-z_0-9]+")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def room_of(path: str) -> str:
    """The innermost room of the table that holds `path`, or nothing."""
    parts = path.split("/")
    for length in range(len(parts), 0, -1):
        if "/".join(parts[:length]) in ALLOWED:
            return "/".join(parts[:length])
    return ""


def violations(path: str, text: str) -> list[str]:
    room = room_of(path)
    if not room:
        return [f"{path}: lies in no room of the table"]
    native = room in WINDOWS
    found = []
    for bracket, header in INCLUDE.findall(text):
        if bracket == '"':
            target = room_of(header)
            if (target != room and target not in ALLOWED[room]
                    and header not in SHARED_HEADERS.get(room, set())):
                found.append(f'{path}: "{header}" is beyond the border of {room}')
        elif not (native or STANDARD_HEADER.fullmatch(header)
                  or header in FURTHER_HEADERS.get(room, set())):
            found.append(f"{path}: <{header}> is no header of the C++ standard library")
    return found


def sources() -> list[Path]:
    unwatched = {"build", "out", ".git"}
    return [path for pattern in ("*.h", "*.cpp") for path in sorted(PROJECT.rglob(pattern))
            if path.relative_to(PROJECT).parts[0] not in unwatched]


def main() -> int:
    files = sources()
    found = []
    for path in files:
        found += violations(path.relative_to(PROJECT).as_posix(), path.read_text())
    for violation in found:
        print(violation)
    print(f"{len(files)} files, {len(found)} violations")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
