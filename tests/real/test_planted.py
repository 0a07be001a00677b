"""What a stranger put beside a portable copy is neither loaded nor started, by none of the five
programs."""

import re
import shutil
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

from rig.created import Created, created_in
from rig.paths import BARE_PLAYER, MARKER_LIBRARY, MARKER_PROGRAM, OVERRUN, PROGRAM
from rig.playing import helpers_running
from rig.program import GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.rig import Rig
from rig.served_site import ServedSite
from rig.sound import Recorder
from rig.tone_programs import file_of
from rig.waiting import wait_for
from rig.window import Driver, wait_for_window

# Windows maps these before it looks into any folder: its known libraries, and what they need. Wine
# knows no such thing, so a planted one would be taken before the program has begun.
KNOWN = {
    "advapi32", "clbcatq", "combase", "comdlg32", "coml2", "gdi32", "gdiplus", "imagehlp", "imm32",
    "kernel32", "kernelbase", "msctf", "msvcrt", "normaliz", "nsi", "ntdll", "ole32", "oleaut32",
    "psapi", "rpcrt4", "sechost", "setupapi", "shcore", "shell32", "shlwapi", "ucrtbase", "user32",
    "usp10", "win32u", "wldap32", "ws2_32",
}
# Wine's own user32 and setupapi import the first two, before any program has begun; what a library
# of Wine imports late, as uxtheme does the third, it looks for without regard to the folders that
# the program has set.
WINES_OWN = {"version", "zlib1", "msimg32"}
# What the programs load themselves, and what was found planted beside other programs.
NAMED = {"comctl32", "cryptbase", "dsound", "dwmapi", "iertutil", "urlmon", "uxtheme", "wininet",
         "winmm"}
PROGRAMS = ["cmd.exe", "start.exe", "conhost.exe", "explorer.exe", "winebrowser.exe"]
OVERRUN_STATUS = 0xC0000409
RANDOM = re.compile(r"[a-z]+[.][a-z]+[.][0-9a-f]{32}[.]tmp")


def names_to_plant(rig: Rig) -> set[str]:
    system = rig.prefix / "drive_c" / "windows" / "system32"
    names = {path.name.lower() for path in system.iterdir() if path.suffix in (".dll", ".drv")}
    return (names | {name + ".dll" for name in NAMED}) - {
        name + ".dll" for name in KNOWN | WINES_OWN}


@pytest.fixture(scope="module")
def portable(rig: Rig) -> Path:
    """A copy of the program among the planted files."""
    folder = rig.new_folder("portable") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    for name in names_to_plant(rig):
        if not (folder / name).exists():
            shutil.copy(MARKER_LIBRARY, folder / name)
    for name in PROGRAMS:
        shutil.copy(MARKER_PROGRAM, folder / name)
    assert len(list(folder.glob("*.dll"))) > 300
    return folder


@pytest.fixture(scope="module")
def trusting_driver(rig: Rig) -> Iterator[Driver]:
    """Starts programs that take every library where they find it, and not Wine's own first."""
    quiet = rig.env["WINEDLLOVERRIDES"]
    names = ",".join(sorted(name.rsplit(".", 1)[0] if name.endswith(".dll") else name
                            for name in names_to_plant(rig)))
    rig.env["WINEDLLOVERRIDES"] = f"{names}=n,b;{quiet}"
    try:
        yield Driver(rig)
    finally:
        rig.env["WINEDLLOVERRIDES"] = quiet


def ran(folder: Path) -> list[str]:
    return sorted(path.name.lower() for path in folder.glob("*.ran"))


@pytest.fixture
def run(rig: Rig, trusting_driver: Driver, portable: Path, folders: Folders) -> Iterator[
        Callable[..., Tonmira]]:
    started: list[Tonmira] = []

    def start(sound_bit: str = "256", send: str = "n", site: str = "", update: str = "n",
              arguments: str = "") -> Tonmira:
        folders.write_settings([f"AutoUpdate={update}", f"Soundbit={sound_bit}", "Language=EN",
                                f"SendData={send}", "Microphone=1", "MicrophoneON=y"])
        trusting_driver.ask("set", "TONMIRA_SITE", site or "http://127.0.0.1:1")
        started.append(Tonmira(rig, trusting_driver, folders, exe=portable / PROGRAM.name,
                               arguments=arguments))
        return started[-1]

    yield start
    for program in started:
        program.finish()


def test_a_planted_library_is_loaded_by_a_program_that_does_not_mind(
        rig: Rig, trusting_driver: Driver, folders: Folders) -> None:
    folder = rig.new_folder("trusting")
    shutil.copy(BARE_PLAYER, folder)
    shutil.copy(MARKER_LIBRARY, folder / "winmm.dll")
    process = trusting_driver.ask(
        "start", rig.windows_path(folder / BARE_PLAYER.name), rig.windows_path(folder),
        rig.windows_path(folders.temp), rig.windows_path(folders.appdata))[0][0]
    wait_for(lambda: ran(folder) == ["winmm.dll.ran"], "the planted library", 20)
    trusting_driver.ask("end", process)


@pytest.mark.parametrize("sound_bit", ["256", "64", "32", "16"])
def test_playing_takes_nothing_from_the_programs_folder(
        rig: Rig, run: Callable[..., Tonmira], portable: Path, recorder: Recorder,
        sound_bit: str) -> None:
    program = run(sound_bit)
    window = program.window(seconds=60)
    program.wait_for_log(">> Program starting finished", 60)
    window.press("Low pitch")
    window.press("Play Sound")
    recorder.wait_for_tone(30)
    window.press("Stop Sound")
    program.wait_for_log("#Sound stopped")
    window.choose(MENU_ABOUT)
    wait_for_window(program.driver, "About Tonmira", program.process).close()
    window.close()
    program.wait_for_end()
    wait_for(lambda: not helpers_running(rig), "the end of the helpers", 5)
    assert ran(portable) == []


def test_the_hearing_test_takes_nothing_from_the_programs_folder(
        run: Callable[..., Tonmira], portable: Path, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    program = run()
    window = program.window(seconds=60)
    program.wait_for_log(">> Program starting finished", 60)
    window.press("Hearing age")
    wait_for(lambda: "Start" in window.texts(), "the mode's caption")
    window.press("Start")
    hearing_test = wait_for_window(program.driver, "Hearing age", seconds=60)
    hearing_test.press("Start")
    recorder.wait_for_tone(30)
    hearing_test.press("Close")
    wait_for(lambda: not hearing_test.is_open(), "its end")
    assert ran(portable) == []


@pytest.mark.parametrize("sound_bit", ["256", "32", "16"])
def test_a_tone_program_takes_nothing_from_the_programs_folder(
        rig: Rig, run: Callable[..., Tonmira], portable: Path, recorder: Recorder,
        sound_bit: str) -> None:
    path = rig.new_folder("tones") / "tones.tnf"
    path.write_bytes(file_of([(440, 1500)], visibility="invisible"))
    program = run(sound_bit, arguments=rig.windows_path(path))
    recorder.wait_for_tone(60)
    program.wait_for_end(60)
    assert ran(portable) == []


def test_going_online_takes_nothing_from_the_programs_folder(
        run: Callable[..., Tonmira], portable: Path, folders: Folders, site: ServedSite) -> None:
    program = run(send="y", site=site.base_url, update="y")
    window = program.window(seconds=60)
    program.wait_for_log(">> Program starting finished", 60)
    window.close()
    program.wait_for_end()
    # The log has been sent: the upload program ran, and by the system's interpreter.
    wait_for(site.received, "the activity log", 60)
    assert ran(portable) == []


def test_a_link_takes_nothing_from_the_programs_folder(
        run: Callable[..., Tonmira], browser: str, portable: Path, folders: Folders) -> None:
    program = run()
    window = program.window(seconds=60)
    program.wait_for_log(">> Program starting finished", 60)
    window.choose(1018)
    wait_for((folders.temp / "links.txt").exists, "the browser", 30)
    window.close()
    program.wait_for_end()
    assert ran(portable) == []


@pytest.mark.parametrize("name", ["Tom,Jerry", "Tom;Jerry", "Tom=Jerry", "Tom'Jerry", "Tom!Jerry",
                                  "Tom%TEMP%Jerry", "Tom 100% (x86) & more"])
def test_a_tone_program_is_heard_whatever_the_folder_of_the_program_is_called(
        rig: Rig, driver: Driver, folders: Folders, recorder: Recorder, name: str) -> None:
    home = rig.new_folder("odd") / name
    shutil.copytree(PROGRAM.parent, home)
    # What the interpreter would take for the program if it acted on the folder's name.
    for end in (name.find(c) for c in ",;=!%' " if c in name):
        shutil.copy(MARKER_PROGRAM, home.parent / (name[:end] + ".exe"))
    settings = list(GOOD_SETTINGS)
    settings[1] = "Soundbit=16"
    folders.write_settings(settings)
    path = rig.new_folder("tones") / "tones.tnf"
    path.write_bytes(file_of([(440, 1500)], visibility="invisible"))
    recorder.wait_for_silence()
    program = Tonmira(rig, driver, folders, exe=home / PROGRAM.name,
                      arguments=rig.windows_path(path))
    try:
        recorder.wait_for_tone(60)
        program.wait_for_end(60)
    finally:
        program.finish()
    assert ran(home.parent) == []


@pytest.mark.parametrize(("prepare", "number"), [
    (lambda path: path.unlink(), 53),
    (lambda path: path.write_bytes(b"no program"), 5),
], ids=["missing", "no-program"])
def test_a_program_that_does_not_start_is_reported_with_its_cause(
        rig: Rig, driver: Driver, folders: Folders, prepare: Callable[[Path], object],
        number: int) -> None:
    home = rig.new_folder("hearing") / "Tonmira"
    shutil.copytree(PROGRAM.parent, home)
    prepare(home / "hearage.dll")
    folders.write_settings(GOOD_SETTINGS)
    program = Tonmira(rig, driver, folders, exe=home / PROGRAM.name)
    try:
        window = program.window(seconds=60)
        program.wait_for_log(">> Program starting finished", 60)
        window.press("Hearing age")
        wait_for(lambda: "Start" in window.texts(), "the mode's caption")
        window.press("Start")
        program.window("Error")
        error = (folders.temp / "error.log").read_text()
        assert error.startswith(f"Error number:  {number},   Error value:  4\n")
    finally:
        program.finish()


def test_a_file_that_a_link_leads_to_is_not_written(
        rig: Rig, driver: Driver, folders: Folders, recorder: Recorder) -> None:
    """A second name of a file is the link that needs no rights."""
    mine = folders.temp.parent / "letter.txt"
    mine.write_bytes(b"Dear Ann")
    for name in ("userdata.txt", "test.txt"):
        (folders.temp / name).hardlink_to(mine)
    settings = list(GOOD_SETTINGS)
    settings[1] = "Soundbit=32"
    folders.write_settings(settings)
    program = Tonmira(rig, driver, folders)
    try:
        program.wait_for_log(">> Program starting finished", 60)
        # What the start has not deleted: it comes after it.
        (folders.temp / "sound.ini").hardlink_to(mine)
        window = program.window()
        window.press("Low pitch")
        window.press("Play Sound")
        recorder.wait_for_tone(30)
        window.press("Stop Sound")
        program.wait_for_log("#Sound stopped")
        assert mine.read_bytes() == b"Dear Ann"
        assert mine.stat().st_nlink == 1
    finally:
        program.finish()


def test_a_stack_that_is_written_over_ends_the_program(
        rig: Rig, driver: Driver, folders: Folders) -> None:
    def status(count: int) -> int:
        process = driver.ask("start", rig.windows_path(OVERRUN), "", rig.windows_path(folders.temp),
                             rig.windows_path(folders.appdata), str(count))[0][0]
        wait_for(lambda: not driver.running(int(process)), "its end", 20)
        return int(driver.ask("exit", process)[0][0]) & 0xFFFFFFFF

    assert status(8) in (7, 8)
    assert status(200) == OVERRUN_STATUS


def test_temporary_names_differ_and_cannot_be_foreseen(
        rig: Rig, driver: Driver, folders: Folders, site: ServedSite) -> None:
    settings = list(GOOD_SETTINGS)
    settings[0] = "AutoUpdate=y"
    folders.write_settings(settings)
    driver.ask("set", "TONMIRA_SITE", site.base_url)
    try:
        with created_in(folders.appdata) as saved, created_in(folders.temp) as fetched:
            program = Tonmira(rig, driver, folders)
            try:
                window = program.window(seconds=60)
                program.wait_for_log(">> Program starting finished", 60)
                for sensitivity, button in enumerate("++-", start=2):
                    window.press(button)
                    wait_for(lambda most=sensitivity - 1: len(temporary(saved)) >= most, "a file")
            finally:
                program.finish()
            names = temporary(saved) + temporary(fetched)
    finally:
        driver.ask("set", "TONMIRA_SITE", "http://127.0.0.1:1")
    assert len(names) >= 5
    assert len(set(names)) == len(names)
    assert [name for name in names if not RANDOM.fullmatch(name)] == []


def temporary(created: Created) -> list[str]:
    return [name for name in created.names() if name.endswith(".tmp")]
