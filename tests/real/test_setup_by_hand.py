"""The installer by hand, that is by keyboard, in both languages."""

import subprocess
from collections.abc import Iterator

import pytest

from rig.installing import CANCELLED, OWN_FILES, Command, Desktop, contents
from rig.paths import SCREENS
from rig.rig import Rig
from rig.setups import OLD_VERSION, VERSION, Setups
from rig.waiting import wait_for
from rig.window import Driver, User, Window

TEXTS = {
    "en": {"what": "is installed for you alone", "newer": f"Tonmira {OLD_VERSION} is installed",
           "older": "a newer version", "same": "is already installed",
           "done": f"Tonmira {VERSION} is installed.", "running": "Tonmira is running",
           "cancelled": "Cancelled. Nothing was changed.", "remove": "Tonmira is removed from the",
           "removed": "Uninstallation Complete", "start": "alt+s", "settings": "alt+d"},
    "nl": {"what": "wordt alleen voor u geïnstalleerd",
           "newer": f"Tonmira {OLD_VERSION} is op deze computer geïnstalleerd",
           "older": "een nieuwere versie", "same": "is al op deze computer geïnstalleerd",
           "done": f"Tonmira {VERSION} is geïnstalleerd.", "running": "Tonmira is nog open",
           "cancelled": "Geannuleerd. Er is niets gewijzigd.",
           "remove": "Tonmira wordt verwijderd uit de map", "removed": "Verwijderen gereed",
           "start": "alt+s", "settings": "alt+i"},
}


@pytest.fixture(params=TEXTS)
def language(request: pytest.FixtureRequest) -> str:
    return str(request.param)


@pytest.fixture
def speaking(language: str, rig: Rig, driver: Driver) -> Iterator[Driver]:
    """A driver whose programs have a system of that language."""
    if language == "en":
        yield driver
        return
    locales = rig.new_folder("locales")
    subprocess.run(["localedef", "-i", "nl_NL", "-f", "UTF-8", locales / "nl_NL.UTF-8"],
                   check=True, timeout=60)
    before = dict(rig.env)
    rig.env.update({"LOCPATH": str(locales), "LC_ALL": "nl_NL.UTF-8"})
    yield Driver(rig)
    rig.env.clear()
    rig.env.update(before)


class Hands:
    """Somebody who reads what the installer says, and has a keyboard."""

    def __init__(self, desktop: Desktop, driver: Driver, user: User, language: str):
        self.desktop = desktop
        self.driver = driver
        self.user = user
        self.language = language
        self.texts = TEXTS[language]

    def start(self, program: str) -> Command:
        return self.desktop.start(program, driver=self.driver)

    def read(self, what: str, picture: bool = True) -> Window:
        """Waits for a window that says something, and makes it the active one."""
        text = self.texts[what]

        def find() -> Window | None:
            for window in self.driver.windows():
                if window.visible and window.kind == "#32770" and self.says(window.handle, text):
                    return Window(self.driver, window.handle, window.title)
            return None

        window = wait_for(find, repr(text))
        assert isinstance(window, Window)
        self.user.activate(window)
        if picture:
            self.user.screenshot(window, SCREENS / f"setup-{what}-{self.language}.png")
        return window

    def says(self, window: str, text: str) -> bool:
        try:
            return any(text in control.text and control.visible
                       for control in self.driver.controls(window))
        except RuntimeError:
            return False  # it went while it was read

    def type(self, *keys: str) -> None:
        self.user.type_keys(*keys)


def test_by_keyboard_alone_from_the_first_installation_to_the_last_trace(
        desktop: Desktop, speaking: Driver, driver: Driver, user: User, setups: Setups,
        language: str) -> None:
    hands = Hands(desktop, speaking, user, language)
    # A new installation, which starts the program in the end.
    setup = hands.start(desktop.windows_path(setups.old))
    hands.read("what")
    hands.type("Return")
    wait_for(lambda: (desktop.folder / "tonmira.exe").exists(), "the program")
    finish = wait_for(lambda: [w for w in speaking.windows() if w.visible and any(
        c.access_key == hands.texts["start"][-1] and c.kind == "Button" and c.visible
        for c in speaking.controls(w.handle))], "the last page")
    user.activate(Window(speaking, finish[0].handle, finish[0].title))
    hands.type("Return")
    assert setup.code() == 0
    wait_for(desktop.main_windows, "the program")
    desktop.close_all()
    window = desktop.start_playing()

    # An upgrade over the program that plays, first given up, then gone on with.
    files = contents(desktop.folder)
    setup = hands.start(desktop.windows_path(setups.new))
    hands.read("newer")
    hands.type("Return")
    hands.read("running")
    assert window.button("Stop Sound").enabled
    hands.type("Escape")
    hands.read("cancelled", picture=False)
    hands.type("Escape")
    assert setup.code() == CANCELLED
    assert contents(desktop.folder) == files
    assert window.button("Stop Sound").enabled
    setup = hands.start(desktop.windows_path(setups.new))
    hands.read("newer", picture=False)
    hands.type("Return")
    hands.read("running", picture=False)
    hands.type("Return")
    hands.read("done")
    assert not desktop.running()
    hands.type(hands.texts["start"], "Return")
    assert setup.code() == 0
    assert not desktop.running()
    files = contents(desktop.folder)
    assert set(files) - set(contents(setups.folder)) == OWN_FILES
    assert {name: files[name] for name in contents(setups.folder)} == contents(setups.folder)

    # What an older and the same version would do, without doing it.
    for installer, what in ((setups.old, "older"), (setups.new, "same")):
        setup = hands.start(desktop.windows_path(installer))
        hands.read(what)
        hands.type("Escape")
        assert setup.code() == CANCELLED

    # Removal, with the settings.
    hands.start(desktop.windows_path(desktop.folder / "uninstall.exe"))
    hands.read("remove")
    hands.type(hands.texts["settings"], "Return")
    hands.read("removed")
    hands.type("Return")
    desktop.wait_until_uninstalled()
    assert not desktop.folders.settings_file.exists()
    desktop.folders.write_settings(["x"])
