"""Where things are that the rig uses and makes."""

from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]

# Built by the preset "windows".
PROGRAM = PROJECT / "build" / "windows" / "tonmira" / "tonmira.exe"
PARTS = PROJECT / "build" / "windows" / "rig"
DRIVER = PARTS / "driver.exe"
BARE_WINDOW = PARTS / "bare_window.exe"
BARE_PLAYER = PARTS / "bare_player.exe"
LINK_TAKER = PARTS / "link_taker.exe"

# Prepared once, kept between runs.
CACHE = PROJECT / "build" / "rig"

SCREENS = PROJECT / "out" / "screens"
FAILURES = PROJECT / "out" / "failures"
