"""The first run: from an empty user profile to the main window in the chosen language."""

import shutil
from collections.abc import Callable

import pytest

from rig.paths import PROGRAM, SCREENS
from rig.pictures import assert_shows_something
from rig.program import FIRST_RUN_TITLE, MAIN_TITLE, Folders, Tonmira
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import User, Window

ENGLISH = [
    "Language:",
    'By pressing on "Accept" you give Zevrin Software permission to send anonymous data about '
    "using Tonmira to a server. This data will be used to make Tonmira better. If you select the "
    "checkbox below no data will be sent to our servers.",
    'By pressing on "Accept" you know that Zevrin Software is not responsible for damage to '
    "hearing and the consequences of this.",
    'By pressing on "Accept" you are aware that Tonmira is protected by copyright.',
    "I don't want to send anonymous data", "Accept", "Don't accept"]
DUTCH = [
    "Taal:",
    'Na het klikken op "Accepteren" geeft u Zevrin Software toestemming om anonieme data te '
    "verzenden naar een server. Deze data wordt gebruikt om Tonmira beter te maken. Als u de "
    "checkbox onderaan dit venster selecteert zal dit niet gebeuren.",
    'Na het klikken op "Accepteren" weet u dat Zevrin Software niet aansprakelijk is voor schade '
    "aan uw gehoor en de gevolgen daarvan.",
    'Na het klikken op "Accepteren" weet u dat Tonmira is beschermt met copyright.',
    "Ik wil geen anonieme data verzenden", "Accepteren", "Niet accepteren"]
PLAY = {"EN": "Play Sound", "NL": "Geluid afspelen"}


def settings(language: str, send_data: str) -> bytes:
    return (f"AutoUpdate=y\r\nSoundbit=128\r\nLanguage={language}\r\nSendData={send_data}\r\n"
            "Microphone=1\r\nMicrophoneON=y\r\n").encode()


def first_run(program: Tonmira) -> Window:
    """The dialog, once the start behind it is over."""
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    wait_for(lambda: program.titles() == [FIRST_RUN_TITLE], "the dialog alone")
    return dialog


def captions(dialog: Window) -> list[str]:
    return [c.text for c in dialog.controls() if c.kind in ("Static", "Button")]


def shows_list(program: Tonmira) -> bool:
    """Whether the list of languages is open below its field."""
    return any(w.kind == "ComboLBox" and w.visible and w.process == program.process
               for w in program.driver.windows())


def assert_main_window(program: Tonmira, language: str) -> None:
    """The main window is the one window and shows the texts of the language."""
    window = program.window()
    program.wait_for_log(f"Language={language}")
    program.wait_for_log(">> Program starting finished")
    wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone")
    assert window.button(PLAY[language]).enabled


def test_accepting_in_dutch_with_the_mouse_brings_up_the_main_window_in_dutch(
        launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    program = launch(folders)
    dialog = first_run(program)
    assert captions(dialog) == ENGLISH
    assert dialog.chosen() == ""
    user.activate(dialog)
    user.screenshot(dialog, SCREENS / "first-run.png")
    assert_shows_something(SCREENS / "first-run.png", 500, 250)
    user.click(dialog, "ComboBox", "")
    wait_for(lambda: shows_list(program), "the list")
    user.type_keys("Down", "Down", "Return")
    wait_for(lambda: captions(dialog) == DUTCH, "the Dutch texts")
    assert dialog.chosen() == "Dutch"
    assert not folders.settings_file.exists()
    # A click beside an open list closes the list and no more.
    wait_for(lambda: not shows_list(program), "the end of the list")
    user.click_button(dialog, "Accepteren")

    restarted = program.successor()
    program.wait_for_end()
    assert folders.settings_file.read_bytes() == settings("NL", "y")
    assert_main_window(restarted, "NL")
    user.screenshot(restarted.window(), SCREENS / "main-after-first-run.png")
    # The first copy has handed its log over at its end.
    assert folders.names() == ["snd.ini", "tonmira.ini", "userdata.txt"]


@pytest.mark.parametrize(("index", "refuses", "language", "send_data"), [
    (None, False, "EN", "y"), (None, True, "EN", "n"), (0, False, "EN", "y"),
    (0, True, "EN", "n"), (1, True, "NL", "n")])
def test_accepting_writes_what_was_chosen(
        launch: Callable[..., Tonmira], folders: Folders, index: int | None, refuses: bool,
        language: str, send_data: str) -> None:
    program = launch(folders)
    dialog = first_run(program)
    texts = DUTCH if index == 1 else ENGLISH
    if index is not None:
        dialog.select(index)
        wait_for(lambda: captions(dialog) == texts, "the texts of the choice")
    if refuses:
        dialog.press(texts[4])
        wait_for(lambda: dialog.is_checked(texts[4]), "the tick")
    dialog.press(texts[5])

    restarted = program.successor()
    program.wait_for_end()
    assert folders.settings_file.read_bytes() == settings(language, send_data)
    assert_main_window(restarted, language)


def test_the_keyboard_alone_is_enough(
        launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    program = launch(folders)
    dialog = first_run(program)
    # The dialog gets the keyboard, and in it the list of languages; Enter there accepts nothing.
    user.wait_for_keyboard(dialog)
    user.type_keys("Return")
    user.type_keys("Down", "Down")
    wait_for(lambda: dialog.chosen() == "Dutch", "the second language")
    wait_for(lambda: captions(dialog) == DUTCH, "the Dutch texts")
    user.type_keys("Up")
    wait_for(lambda: captions(dialog) == ENGLISH, "the English texts")
    user.type_keys("Down", "Return")
    wait_for(lambda: captions(dialog) == DUTCH, "the Dutch texts again")
    assert not folders.settings_file.exists()
    user.type_keys("Tab", "space")
    wait_for(lambda: dialog.is_checked("Ik wil geen anonieme data verzenden"), "the tick")
    user.type_keys("Tab", "Return")

    restarted = program.successor()
    program.wait_for_end()
    assert folders.settings_file.read_bytes() == settings("NL", "n")
    assert_main_window(restarted, "NL")
    window = restarted.window()
    user.wait_for_keyboard(window)
    user.type_keys("alt+" + window.button("Hoge toon").access_key)
    wait_for(lambda: window.is_checked("Hoge toon"), "a mode, chosen in the new main window")


def test_the_access_keys_follow_the_language(
        launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    program = launch(folders)
    dialog = first_run(program)
    user.activate(dialog)
    user.type_keys("alt+" + dialog.button("I don't want to send anonymous data").access_key)
    wait_for(lambda: dialog.is_checked("I don't want to send anonymous data"), "the tick")
    dialog.select(1)
    wait_for(lambda: captions(dialog) == DUTCH, "the Dutch texts")
    keys = [dialog.button(caption).access_key for caption in DUTCH[4:]]
    assert all(keys) and len(set(keys)) == 3
    user.type_keys("alt+" + dialog.button("Niet accepteren").access_key)
    program.wait_for_end()
    assert not folders.settings_file.exists()


@pytest.mark.parametrize("way", ["button", "frame", "escape"])
def test_leaving_it_otherwise_ends_the_program_and_the_next_start_shows_it_again(
        launch: Callable[..., Tonmira], folders: Folders, user: User, way: str) -> None:
    program = launch(folders)
    dialog = first_run(program)
    if way == "button":
        dialog.press("Don't accept")
    elif way == "frame":
        dialog.close()
    else:
        user.activate(dialog)
        user.type_keys("Escape")
    program.wait_for_end()
    assert folders.names() == ["userdata.txt"]
    again = launch(folders)
    assert captions(first_run(again)) == ENGLISH


def test_it_starts_anew_from_a_folder_with_blanks_and_special_characters_and_any_name(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders) -> None:
    home = rig.new_folder("first") / "Tonmira (x86) & Söhne 100% ^!"
    shutil.copytree(PROGRAM.parent, home)
    renamed = home / "my tonmira & co.exe"
    (home / PROGRAM.name).rename(renamed)
    (home / "nl.ini").write_text("nl")
    program = launch(folders, exe=renamed, start_folder=folders.temp)
    dialog = first_run(program)
    assert not (home / "nl.ini").exists()
    dialog.select(1)
    wait_for(lambda: captions(dialog) == DUTCH, "the Dutch texts")
    dialog.press("Accepteren")
    restarted = program.successor()
    program.wait_for_end()
    assert_main_window(restarted, "NL")


def test_a_damaged_file_brings_it_up_and_accepting_repairs_it(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    folders.write_settings(["AutoUpdate=y", "Soundbit=3"])
    program = launch(folders)
    dialog = first_run(program)
    dialog.press("Accept")
    restarted = program.successor()
    assert folders.settings_file.read_bytes() == settings("EN", "y")
    assert_main_window(restarted, "EN")


def test_a_folder_that_is_gone_when_it_is_accepted_leads_to_the_error_dialog(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    program = launch(folders)
    dialog = first_run(program)
    folders.appdata.rmdir()
    dialog.press("Accept")
    error = program.window("Error")
    wait_for(lambda: program.titles() == ["Error"], "the error dialog alone")
    lines = (folders.temp / "error.log").read_text().split("\n")
    assert lines[0] == "Error number:  76,   Error value:  502"
    error.press("Exit")
    program.wait_for_end()
    assert not folders.appdata.exists()
