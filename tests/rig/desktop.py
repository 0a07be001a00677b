"""What the tests of the windows on a desktop share: a started program, its windows."""

from collections.abc import Callable

from rig.program import GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.waiting import wait_for
from rig.window import Window

DUTCH = {"Custom pitch": "Eigen toonhoogte", "Morse tool": "Morsetool", "Start": "Starten"}


def start(launch: Callable[..., Tonmira], folders: Folders, language: str = "EN",
          **options: object) -> Tonmira:
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    program = launch(folders, **options)
    program.wait_for_log(">> Program starting finished")
    return program


def open_windows(program: Tonmira, language: str) -> dict[str, tuple[Window, int]]:
    """Everything that opens from the main window, with its width at 96 DPI."""
    def text(english: str) -> str:
        return DUTCH.get(english, english) if language == "NL" else english

    main = program.window()
    main.press(text("Custom pitch"))
    wait_for(lambda: main.button("Help").enabled, "the help button")
    main.press("Help")
    found = {"main": (main, 640), "help": (program.window("Help"), 560)}
    main.choose(MENU_ABOUT)
    found["about"] = (program.window("About Tonmira"), 420)
    main.press(text("Morse tool"))
    wait_for(lambda: main.is_checked(text("Morse tool")), "the mode")
    main.press(text("Start"))
    found["morse"] = (program.window(text("Morse tool")), 480)
    return found
