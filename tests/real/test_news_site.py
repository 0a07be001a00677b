"""What the news window tells the system's browser object. The rig has none: a program stands in
for it."""

from rig.paths import SITE_EVENTS
from rig.program import Folders
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver


def test_the_browser_is_told_what_a_page_may_do(rig: Rig, driver: Driver, folders: Folders) -> None:
    process = driver.ask("start", rig.windows_path(SITE_EVENTS), "", rig.windows_path(folders.temp),
                         rig.windows_path(folders.appdata))[0][0]
    wait_for(lambda: not driver.running(int(process)), "its end", 30)
    assert (folders.temp / "events.txt").read_text().splitlines() == [
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
