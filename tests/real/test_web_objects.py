"""What the program tells the system's browser object, of which the rig has none, and the service
for downloads, for which it has no encrypted hosts: programs stand in for both."""

from pathlib import Path

from rig.paths import DOWNLOAD_EVENTS, SITE_EVENTS
from rig.program import Folders
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver


def events_of(program: Path, rig: Rig, driver: Driver, folders: Folders) -> list[str]:
    process = driver.ask("start", rig.windows_path(program), "", rig.windows_path(folders.temp),
                         rig.windows_path(folders.appdata))[0][0]
    wait_for(lambda: not driver.running(int(process)), "its end", 30)
    return (folders.temp / "events.txt").read_text().splitlines()


def test_a_download_is_never_sent_on_from_an_encrypted_address_to_one_that_is_not(
        rig: Rig, driver: Driver, folders: Folders) -> None:
    assert events_of(DOWNLOAD_EVENTS, rig, driver, folders) == [
        "https://a.example/ https://b.example/ goes on, aborted 0",
        "http://a.example/ https://b.example/ goes on, aborted 0",
        "https://a.example/ http://a.example/ ended, aborted 1",
        "http://a.example/ https://b.example/ goes on http://c.example/ ended, aborted 1",
        "http://a.example/ file://host/share ended, aborted 1",
    ]


def test_the_browser_is_told_what_a_page_may_do(rig: Rig, driver: Driver, folders: Folders) -> None:
    assert events_of(SITE_EVENTS, rig, driver, folders) == [
        "navigate http://a.example/ goes on",
        "outside mailto:a@b.example",
        "navigate mailto:a@b.example stopped",
        "window 0 stopped",
        "outside http://to.example/",
        "window 2 stopped",
        "window 4 stopped",
        "outside http://to.example/",
        "window 6 stopped",
        "page goes on",
        "file stopped",
        "zone 4 ours",
        "zone 99 theirs",
        "policy 30000 as asked",
        "policy 3 not",
        "name denied",
    ]
