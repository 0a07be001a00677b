"""The online services: hosts that serve what they ask for, and what they leave behind."""

from rig import bad_hosts
from rig.program import MAIN_TITLE, Folders, Tonmira
from rig.window import Window

PATIENCE_S = 60  # for a busy machine; how long it took is printed
NEWS_TITLES = {"EN": "Tonmira online news", "NL": "Tonmira online nieuws (engels)"}
WEBSITE, CONTACT, DONATE = 1018, 1019, 1020  # ids of the menu's entries


def site_of(pages: dict[str, bytes]) -> bad_hosts.Behaviour:
    """A host of these pages and no others."""
    def serve(visit: bad_hosts.Visit) -> None:
        path = visit.path
        if path in pages:
            kind = "text/html" if path.endswith(".html") else "text/plain"
            visit.answer("200 OK", f"Content-Type: {kind}", "Cache-Control: no-store",
                         f"Content-Length: {len(pages[path])}", body=pages[path])
        else:
            bad_hosts.missing(visit)

    return serve


def good_site(update_file: bytes = b"236\r\n") -> bad_hosts.Behaviour:
    return site_of({"/updatetonmira.txt": update_file, "/testcon.dat": b"ok",
                    "/information.html": b"<!DOCTYPE html><title>News</title><p>News</p>"})


def nothing_is_left(folders: Folders) -> bool:
    return folders.names() == ["tonmira.ini", "userdata.txt"]


def opened(folders: Folders) -> list[str]:
    """What the user's browser was started with."""
    try:
        return (folders.temp / "links.txt").read_text().splitlines()
    except FileNotFoundError:
        return []


def accept_update(program: Tonmira) -> Window:
    dialog = program.window("Update found", seconds=PATIENCE_S)
    assert program.titles().count(MAIN_TITLE) == 0
    dialog.press("Update")
    program.wait_for_end()
    return dialog
