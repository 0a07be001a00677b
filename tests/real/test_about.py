"""The about box, and the system's information tool that it starts."""

import shutil
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

from rig.paths import PROGRAM, PROJECT, SCREENS
from rig.pictures import assert_shows_something
from rig.program import GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, User, Window, wait_for_window

TITLE = "About Tonmira"
UNAVAILABLE = "System Information Is Unavailable At This Time"
DESCRIPTION = ("Create the most annoying sounds with Tonmira! Any problems? Mail to: "
               "support@tonmira.example")
DUTCH_DESCRIPTION = ("Maak de meest vervelende geluiden met Tonmira! Problemen? Mail dan naar: "
                     "support@tonmira.example")

TOOL_KEY = r"SOFTWARE\Microsoft\Shared Tools\MSINFO"
FOLDER_KEY = r"SOFTWARE\Microsoft\Shared Tools Location"
# The system's numbers of the kinds of values.
TEXT, EXPANDED_TEXT, BINARY, NUMBER = 1, 2, 3, 4
# A program that shows a window "Bare" and nothing more.
BARE = PROJECT / "build" / "windows" / "rig" / "bare_window.exe"


class Registry:
    """The keys that tell where the information tool is."""

    def __init__(self, driver: Driver):
        self.driver = driver

    def clear(self) -> None:
        for key in (TOOL_KEY, FOLDER_KEY):
            self.driver.ask("forget", key)

    def put(self, key: str, name: str, kind: int, data: bytes) -> None:
        """Stores the bytes as they are, whether or not they suit the kind."""
        self.driver.ask("store", key, name, str(kind), data.hex())


@pytest.fixture
def registry(driver: Driver) -> Iterator[Registry]:
    registry = Registry(driver)
    registry.clear()
    yield registry
    registry.clear()


@pytest.fixture
def tool(rig: Rig) -> Path:
    """An information tool in a folder with blanks."""
    folder = rig.new_folder("Common Files") / "Microsoft Shared (x64)"
    folder.mkdir()
    return Path(shutil.copy(BARE, folder / "MSINFO32.EXE"))


def stored(text: str) -> bytes:
    return (text + "\0").encode("utf-16-le")


def open_box(launch: Callable[..., Tonmira], folders: Folders, language: str = "EN",
             **options: Path) -> tuple[Tonmira, Window]:
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    program = launch(folders, **options)
    program.wait_for_log(">> Program starting finished")
    program.window().choose(MENU_ABOUT)
    return program, program.window(TITLE)


def end_tool(driver: Driver) -> None:
    """Waits for the tool's window and ends the process that shows it."""
    window = wait_for_window(driver, "Bare")
    process = next(w.process for w in driver.windows() if w.handle == window.handle)
    driver.ask("adopt", str(process))
    driver.ask("end", str(process))
    wait_for(lambda: not driver.running(process), "the end of the tool")


@pytest.mark.parametrize(("language", "button"),
                         [("EN", "System Info..."), ("NL", "Systeeminfo...")])
def test_the_box_in_both_languages_and_its_message_without_the_keys(
        launch: Callable[..., Tonmira], folders: Folders, user: User, registry: Registry,
        language: str, button: str) -> None:
    program, box = open_box(launch, folders, language)
    user.activate(box)
    picture = SCREENS / f"about-{language.lower()}.png"
    user.screenshot(box, picture)
    assert_shows_something(picture, 400, 190)
    shown = box.texts()
    for text in ("Tonmira", "Version 2.3.6", DESCRIPTION, "OK", button):
        assert text in shown
    assert box.button(button).access_key == "s"

    user.click_button(box, button)
    message = wait_for(lambda: next(
        (w for w in (Window(program.driver, t.handle, t.title) for t in program.driver.windows()
                     if t.process == program.process and t.kind == "#32770" and t.visible)
         if UNAVAILABLE in w.texts()), None), "the message")
    assert isinstance(message, Window)
    message.press("OK")
    wait_for(lambda: not message.is_open(), "the box without its message")
    user.activate(box)
    user.type_keys("Escape")
    wait_for(lambda: program.titles() == ["Tonmira"], "the main window alone")


def test_the_tool_that_the_registry_names_is_started(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders, driver: Driver,
        user: User, registry: Registry, tool: Path) -> None:
    registry.put(TOOL_KEY, "PATH", TEXT, stored(rig.windows_path(tool)))
    program, box = open_box(launch, folders)
    user.activate(box)
    user.type_keys("alt+s")
    end_tool(driver)
    # Once more with a path that names a variable.
    relative = rig.windows_path(tool).removeprefix(rig.windows_path(rig.folder))
    registry.put(TOOL_KEY, "PATH", EXPANDED_TEXT, stored("%TEMP%\\..\\.." + relative))
    box.press("System Info...")
    end_tool(driver)
    assert program.running()


def test_the_folder_of_the_shared_tools_is_used_where_the_path_is_missing(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders, driver: Driver,
        registry: Registry, tool: Path) -> None:
    registry.put(FOLDER_KEY, "MSINFO", TEXT, stored(rig.windows_path(tool.parent)))
    _, box = open_box(launch, folders)
    box.press("System Info...")
    end_tool(driver)


@pytest.mark.parametrize(("kind", "data"), [
    (TEXT, stored(r"C:\nowhere\MSINFO32.EXE")),
    (TEXT, stored("")),
    (TEXT, b""),
    (TEXT, b"C"),                              # half a character
    (TEXT, b"C\0:\0\\"),                      # no terminating zero, half a character too many
    (TEXT, "x".encode("utf-16-le") * 3000),    # longer than usual, no terminating zero
    (EXPANDED_TEXT, "%TEMP%".encode("utf-16-le") * 200),
    (NUMBER, (42).to_bytes(4, "little")),
    (NUMBER, b"\1\2"),
    (BINARY, b""),
    (BINARY, b"\xff\0\1"),
])
def test_a_value_that_names_no_program_leads_to_the_message(
        launch: Callable[..., Tonmira], folders: Folders, registry: Registry, kind: int,
        data: bytes) -> None:
    registry.put(TOOL_KEY, "PATH", kind, data)
    program, box = open_box(launch, folders)
    box.press("System Info...")
    wait_for(lambda: sorted(program.titles()) == sorted(["Tonmira", "Tonmira", TITLE]),
             "the message")
    assert not (folders.temp / "error.log").exists()


def test_the_description_is_dutch_beside_the_old_language_file(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders) -> None:
    home = rig.new_folder("old") / "Tonmira"
    shutil.copytree(PROGRAM.parent, home)
    (home / "nl.ini").write_bytes(b"")
    _, box = open_box(launch, folders, exe=home / PROGRAM.name)
    assert DUTCH_DESCRIPTION in box.texts()
    assert DESCRIPTION not in box.texts()
