"""Where things are that the rig uses and makes."""

import os
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]

# Built by the preset "windows", if no other build is named.
BUILD = Path(os.environ.get("TONMIRA_BUILD", PROJECT / "build" / "windows"))
PROGRAM = BUILD / "tonmira" / "tonmira.exe"
PARTS = BUILD / "rig"
DRIVER = PARTS / "driver.exe"
BARE_WINDOW = PARTS / "bare_window.exe"
BARE_PLAYER = PARTS / "bare_player.exe"
LINK_TAKER = PARTS / "link_taker.exe"
OVERRUN = PARTS / "overrun.exe"
DOWNLOAD_EVENTS = PARTS / "download_events.exe"
SITE_EVENTS = PARTS / "site_events.exe"
MARKER_LIBRARY = PARTS / "marker.dll"
MARKER_PROGRAM = PARTS / "marker.exe"
NAME_SERVICE = PARTS / "name_service.dll"

# Prepared once, kept between runs.
CACHE = PROJECT / "build" / "rig"

SCREENS = PROJECT / "out" / "screens"
FAILURES = PROJECT / "out" / "failures"
