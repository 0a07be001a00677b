"""The installer without anybody who looks: install, start, open, upgrade, remove."""

import os
import signal
import time
from pathlib import Path

from rig.installing import (APPS_KEY, CHOSEN_KEY, ENDING_KEY, FAILED, IN_USE, OTHER_SETUP,
                            OWN_FILES, TYPE_KEY, Desktop, contents)
from rig.paths import PROGRAM
from rig.rig import Rig
from rig.setups import OLD_VERSION, SIGNATURE, VERSION, Setups, make_setup
from rig.tone_programs import PATH, file_of, label
from rig.waiting import wait_for
from rig.window import Driver


def is_installed(desktop: Desktop, source: Path, folder: Path | None = None) -> None:
    """Whether a folder has what was shipped, and nothing else."""
    installed = contents(folder or desktop.folder)
    shipped = contents(source)
    assert set(installed) - set(shipped) == OWN_FILES
    assert {name: installed[name] for name in shipped} == shipped


def expect_in_list_of_apps(desktop: Desktop) -> None:
    folder = desktop.windows_path(desktop.folder)
    kilobytes = sum(path.stat().st_size for path in PROGRAM.parent.rglob("*")
                    if path.is_file()) // 1024
    lines = [line.split("    ", 2) for line in desktop.query(APPS_KEY)[1:]]
    entry = {name: value for name, _, value in lines}
    assert entry == {
        "DisplayName": "Tonmira", "DisplayIcon": folder + r"\tonmira.exe,0",
        "DisplayVersion": VERSION, "Publisher": "Zevrin Software",
        "URLInfoAbout": "https://www.tonmira.example", "InstallLocation": folder,
        "UninstallString": f'"{folder}\\uninstall.exe"',
        "QuietUninstallString": f'"{folder}\\uninstall.exe" /S',
        "EstimatedSize": hex(kilobytes), "VersionMajor": "0x" + VERSION.split(".")[0],
        "VersionMinor": "0x" + VERSION.split(".")[1], "NoModify": "0x1", "NoRepair": "0x1"}


def test_it_installs_starts_opens_and_leaves_nothing(
        desktop: Desktop, driver: Driver, setups: Setups, rig: Rig) -> None:
    machine = desktop.registry(r"HKEY_LOCAL_MACHINE\Software")
    assert desktop.run(setups.new) == 0
    is_installed(desktop, PROGRAM.parent)
    expect_in_list_of_apps(desktop)
    assert (desktop.folder / "uninstall.exe").read_bytes().endswith(SIGNATURE.encode())
    icon = Path(desktop.folder / "tnf.ico").read_bytes()
    assert icon[:4] == b"\0\0\1\0" and icon != (desktop.folder / "tonmira.exe").read_bytes()

    window = desktop.start_idle()
    assert desktop.windows_path(desktop.folder / "tonmira.exe") in desktop.running()[0]
    assert window.button("Play Sound").enabled
    desktop.close_all()

    path = rig.new_folder("tones") / "my tune.tnf"
    path.write_bytes(file_of([(440, 100)]))
    with desktop.users_classes_shown():
        desktop.open(path)
        wait_for(desktop.main_windows, "the player")
        player = desktop.main_windows()[0]
        wait_for(lambda: label(player, PATH) == rig.windows_path(path), "the path")
        desktop.close_all()
    assert desktop.value(TYPE_KEY + r"\shell\edit\command") == (
        r'"%SystemRoot%\system32\notepad.exe" "%1"')

    desktop.uninstall()
    assert not desktop.folder.exists()
    assert not (desktop.menu / "Tonmira.lnk").exists()
    assert desktop.registry(r"HKEY_LOCAL_MACHINE\Software") == machine
    # What was there before is looked at by the fixture; the user's settings and log stay.
    assert desktop.folders.settings_file.exists()
    assert desktop.folders.log_file.exists()


def test_settings_and_logs_go_when_that_is_asked_for(desktop: Desktop, setups: Setups) -> None:
    temp, appdata = desktop.folders.temp, desktop.folders.appdata
    for name in ("userdata.txt", "error.log", "sound.ini", "snd.ini", "error.log.a1.tmp"):
        (temp / name).write_text("x")
    (temp / "mine.txt").write_text("x")
    (appdata / "tonmira.ini.a1.tmp").write_text("x")
    assert desktop.run(setups.new) == 0
    desktop.uninstall()
    assert desktop.folders.names() == ["error.log", "mine.txt", "tonmira.ini", "userdata.txt"]
    assert desktop.run(setups.new) == 0
    desktop.uninstall("/PURGE")
    assert desktop.folders.names() == ["mine.txt"]
    (temp / "mine.txt").unlink()
    desktop.folders.write_settings(["x"])


def test_a_folder_of_the_users_choice_keeps_what_the_user_put_there(
        desktop: Desktop, setups: Setups, rig: Rig) -> None:
    folder = rig.new_folder("chosen") / "Tonmira & more (1)"
    assert desktop.run(setups.new) == 0
    own = desktop.folder / "samples" / "mine.tnf"
    own.write_text("mine")
    chosen = "/S /D=" + rig.windows_path(folder)
    assert desktop.run(setups.new, chosen) == 0
    is_installed(desktop, PROGRAM.parent, folder)
    assert [path.name for path in desktop.folder.rglob("*")] == ["samples", "mine.tnf"]
    assert desktop.value(APPS_KEY, "InstallLocation") == rig.windows_path(folder)
    own.unlink()
    own.parent.rmdir()
    desktop.folder.rmdir()

    (folder / "diary.txt").write_text("mine")
    # Without a word about the folder, the next one goes where the last one went.
    assert desktop.run(setups.old) == 0
    is_installed_beside_diary = set(contents(folder)) - OWN_FILES - {"diary.txt"}
    assert is_installed_beside_diary == set(contents(setups.old_folder))
    desktop.uninstall()
    assert [path.name for path in folder.rglob("*")] == ["diary.txt"]


def test_another_name_of_the_same_folder_is_no_other_folder(
        desktop: Desktop, setups: Setups, rig: Rig) -> None:
    assert desktop.run(setups.old) == 0
    for name in (rig.windows_path(desktop.folder), desktop.windows_path(desktop.folder) + "\\"):
        assert desktop.run(setups.new, "/S /D=" + name) == 0
        is_installed(desktop, PROGRAM.parent)


def test_another_programs_file_type_stays_its_own(desktop: Desktop, setups: Setups) -> None:
    desktop.store(ENDING_KEY, "", "Other.Tones")
    desktop.store(r"HKCU\Software\Classes\Other.Tones", "", "Other tones")
    try:
        before = desktop.query(ENDING_KEY)
        assert desktop.run(setups.new) == 0
        assert desktop.value(ENDING_KEY) == "Other.Tones"
        assert any("Tonmira.ToneProgram" in line for line in desktop.query(
            ENDING_KEY + r"\OpenWithProgids"))
        desktop.uninstall()
        assert desktop.query(ENDING_KEY) == before
    finally:
        desktop.delete(ENDING_KEY)
        desktop.delete(r"HKCU\Software\Classes\Other.Tones")


def test_what_the_user_chose_stays_and_what_was_chosen_later_too(
        desktop: Desktop, setups: Setups) -> None:
    desktop.store(ENDING_KEY, "Content Type", "text/x-tones")
    desktop.store(CHOSEN_KEY + r"\UserChoice", "ProgId", "Applications\\notepad.exe")
    try:
        assert desktop.run(setups.new) == 0
        assert desktop.value(ENDING_KEY) == ""
        desktop.delete(CHOSEN_KEY)
        assert desktop.run(setups.new) == 0
        assert desktop.value(ENDING_KEY) == "Tonmira.ToneProgram"
        desktop.store(ENDING_KEY, "", "Later.Tones")
        desktop.store(CHOSEN_KEY + r"\UserChoice", "ProgId", "Tonmira.ToneProgram")
        desktop.uninstall()
        assert desktop.value(ENDING_KEY) == "Later.Tones"
        assert desktop.value(ENDING_KEY, "Content Type") == "text/x-tones"
        assert desktop.query(CHOSEN_KEY + r"\UserChoice") == []
    finally:
        desktop.delete(ENDING_KEY)
        desktop.delete(CHOSEN_KEY)


def test_a_version_that_plays_is_closed_and_replaced(desktop: Desktop, setups: Setups) -> None:
    assert desktop.run(setups.old) == 0
    is_installed(desktop, setups.old_folder)
    desktop.start_playing()
    assert desktop.run(setups.new) == 0
    assert not desktop.running()
    is_installed(desktop, PROGRAM.parent)
    assert desktop.value(APPS_KEY, "DisplayVersion") == VERSION
    # The same again, and an older one.
    assert desktop.run(setups.new) == 0
    is_installed(desktop, PROGRAM.parent)
    assert desktop.run(setups.old) == 0
    is_installed(desktop, setups.old_folder)
    assert desktop.value(APPS_KEY, "DisplayVersion") == OLD_VERSION
    desktop.start_playing()
    desktop.uninstall()
    assert not desktop.running()


def test_nothing_is_replaced_under_a_program_that_does_not_close(
        desktop: Desktop, setups: Setups) -> None:
    assert desktop.run(setups.old) == 0
    files, values = contents(desktop.folder), desktop.registry("HKEY_CURRENT_USER")
    desktop.start_idle()
    process = desktop.processes()[0]
    os.kill(process, signal.SIGSTOP)
    try:
        begin = time.monotonic()
        other = desktop.start(desktop.windows_path(setups.new), "/S")
        wait_for(lambda: list(desktop.folder.glob("update-1/*")), "the new version beside")
        assert desktop.run(setups.new) == OTHER_SETUP
        assert other.code() == IN_USE
        assert 10 <= time.monotonic() - begin < 20
        assert contents(desktop.folder) == files
        assert desktop.registry("HKEY_CURRENT_USER") == values
    finally:
        os.kill(process, signal.SIGCONT)
    wait_for(lambda: not desktop.running(), "the end that it was asked for")


def test_a_program_elsewhere_is_left_alone(desktop: Desktop, setups: Setups, launch) -> None:
    program = launch(desktop.folders)
    program.wait_for_log(">> Program starting finished")
    assert desktop.run(setups.new) == 0
    assert program.running()


def test_a_folder_that_cannot_be_written_is_told_by_the_code(
        desktop: Desktop, setups: Setups) -> None:
    assert desktop.run(setups.new, r"/S /D=Z:\proc\Tonmira") == FAILED


def test_the_same_files_give_the_same_installer(setups: Setups, rig: Rig) -> None:
    assert make_setup(rig, setups.folder).read_bytes() == setups.new.read_bytes()
