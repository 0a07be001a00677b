"""What a fault of the program leaves, and who is told of it."""

import re
import shutil
import time
from collections.abc import Callable
from pathlib import Path

import pytest

from rig.online import opened
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, Folders, Tonmira
from rig.waiting import wait_for

DUTCH = 1013  # the id of the menu's entry


def fail_at_start(launch: Callable[..., Tonmira], folders: Folders) -> Tonmira:
    """The program with its error dialog."""
    folders.write_settings([*GOOD_SETTINGS[:4], "Microphone=abc", GOOD_SETTINGS[5]])
    program = launch(folders)
    program.window("Error")
    return program


def error_lines(folders: Folders) -> list[str]:
    return (folders.temp / "error.log").read_bytes().decode("cp1252").split("\r\n")


def leave(program: Tonmira) -> None:
    program.window("Error").press("Exit")
    program.wait_for_end()


def test_the_dialog_lists_the_lines_of_the_error_log(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    program = fail_at_start(launch, folders)
    assert program.window("Error").items() == error_lines(folders)[:4]
    leave(program)


def test_of_two_errors_in_a_row_the_log_holds_the_second(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    leave(fail_at_start(launch, folders))
    assert error_lines(folders)[0] == "Error number:  13,   Error value:  103"
    folders.settings_file.unlink()
    program = launch(folders)
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    folders.appdata.rmdir()
    dialog.press("Accept")
    program.window("Error")
    assert error_lines(folders)[0] == "Error number:  76,   Error value:  502"
    assert len(error_lines(folders)) == 5
    leave(program)


@pytest.mark.parametrize(("send", "starts"), [("y", 1), ("n", 0)])
def test_the_error_log_is_handed_to_the_upload_program_only_with_consent(
        launch: Callable[..., Tonmira], folders: Folders, copy_with_noting_upload_program: Path,
        send: str, starts: int) -> None:
    folders.write_settings([*GOOD_SETTINGS[:3], f"SendData={send}", *GOOD_SETTINGS[4:]])
    program = launch(folders, exe=copy_with_noting_upload_program)
    program.wait_for_log(">> Program starting finished")
    window = program.window()
    shutil.rmtree(folders.appdata)
    window.choose(DUTCH)
    program.window("Error")
    assert re.fullmatch("Error number:  [0-9]+,   Error value:  102", error_lines(folders)[0])
    if starts:
        wait_for(lambda: opened(folders), "the upload program")
        lines = (folders.temp / "snd.ini").read_bytes().decode().split("\r\n")
        assert lines[0] == "error.log"
    else:
        time.sleep(1)
        assert not (folders.temp / "snd.ini").exists()
    assert len(opened(folders)) == starts
    leave(program)
