"""Takes the pictures of the guide: every window, in English and in Dutch, at 96 DPI.

`python3 -m rig.gallery FOLDER` writes FOLDER/<name>-<language>.png, as the screen shows them. What
the microphone hears is a known tone. The news window is not among them: the rig's Wine has no
browser engine and draws no page.
"""

import contextlib
import shutil
import signal
import sys
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

from rig.bad_hosts import host
from rig.hearing import QUESTIONS, STATE, Listener, start_hearing_test, text_of
from rig.microphone import Microphone
from rig.morse import MESSAGE_BOX, click, text, text_box
from rig.online import good_site
from rig.paths import PROGRAM
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.rig import Rig
from rig.screen import Screen, drawn, periods
from rig.sound import Recorder
from rig.tone_programs import PLAYED, label
from rig.waiting import wait_for
from rig.window import Driver, Place, User, Window

# Left and right: whole periods in the 50 ms that the picture shows.
MICROPHONE_HZ, MICROPHONE_PERIODS = (100, 300), (5, 15)
MICROPHONE_PICTURE = 126
HEARD_UP_TO_HZ = 13400
UPDATE = b"237\r\nhttps://www.tonmira.example/tonmira-2.3.7-setup.exe\r\n"
NO_SITE = "http://127.0.0.1:1"
SAMPLE = r"C:\Tonmira\samples\ode-to-joy.tnf"
SHOWN_TONE = 5


@dataclass(frozen=True)
class Words:
    """The captions that lead from window to window, in one language."""

    code: str
    playing: str
    custom: str
    morse: str
    play: str
    stop: str
    tool: str
    help: str
    update: str
    refusal: str


LANGUAGES = [
    Words("en", "High pitch", "Custom pitch", "Morse tool", "Play Sound", "Stop Sound", "Start",
          "Help", "Update found", "I don't want to send anonymous data"),
    Words("nl", "Hoge toon", "Eigen toonhoogte", "Morsetool", "Geluid afspelen",
          "Geluid stoppen", "Starten", "Help", "Update gevonden",
          "Ik wil geen anonieme data verzenden"),
]


class Gallery:
    def __init__(self, rig: Rig, screen: Screen, folder: Path):
        self.rig = rig
        self.screen = screen
        self.folder = folder
        self.driver = Driver(rig)
        self.user = User(rig)
        self.microphone = Microphone(rig)
        self.recorder = Recorder(rig)
        # The player shows the path of its file.
        shutil.copytree(PROGRAM.parent / "samples",
                        rig.prefix / "drive_c" / "Tonmira" / "samples")

    def take(self, words: Words) -> None:
        self.words = words
        for pictures in (self.first_run, self.update, self.error, self.main, self.player,
                         self.hearing):
            pictures()

    def picture(self, window: Window, name: str, moving: bool = False) -> None:
        self.user.activate(window)
        self.user.screenshot(window, self.folder / f"{name}-{self.words.code}.png", moving)

    def settings(self, **changes: str) -> Folders:
        folders = Folders(self.rig)
        lines = [f"{key}={changes.get(key, value)}" for key, value in
                 (line.split("=") for line in GOOD_SETTINGS)]
        lines[2] = f"Language={self.words.code.upper()}"
        folders.write_settings(lines)
        return folders

    @contextlib.contextmanager
    def started(self, folders: Folders, **options: str) -> Iterator[Tonmira]:
        program = Tonmira(self.rig, self.driver, folders, **options)
        try:
            yield program
        finally:
            program.finish()

    def first_run(self) -> None:
        with self.started(Folders(self.rig)) as program:
            dialog = program.window(FIRST_RUN_TITLE)
            program.wait_for_log(">> Program starting finished")
            dialog.select(["en", "nl"].index(self.words.code))
            wait_for(lambda: self.words.refusal in dialog.texts(), "the language")
            self.picture(dialog, "first-run")

    def update(self) -> None:
        with host(good_site(UPDATE)) as site:
            self.driver.ask("set", "TONMIRA_SITE", site.site)
            with self.started(self.settings()) as program:
                self.picture(program.window(self.words.update), "update")
        self.driver.ask("set", "TONMIRA_SITE", NO_SITE)

    def error(self) -> None:
        with self.started(self.settings(Microphone="abc")) as program:
            dialog = program.window("Error")
            wait_for(lambda: program.titles() == ["Error"], "the dialog alone")
            self.picture(dialog, "error")

    def main(self) -> None:
        """The main window, and what is opened from it."""
        with self.started(self.settings(MicrophoneON="n")) as program:
            program.wait_for_log(">> Program starting finished")
            self.picture(program.window(), "main")
        self.microphone.feed(*MICROPHONE_HZ)
        with self.started(self.settings()) as program:
            program.wait_for_log(">> Program starting finished")
            main = program.window()
            self.play(main)
            self.open_from(program, main)
        self.microphone.silence()

    def play(self, main: Window) -> None:
        words = self.words
        self.user.activate(main)
        self.user.click_button(main, words.playing)
        wait_for(lambda: main.is_checked(words.playing), "the mode")
        self.user.click_button(main, words.play)
        self.recorder.wait_for_tone()
        wait_for(lambda: self.microphone_is_seen(main), "the microphone's tones", 15)
        self.picture(main, "playing", moving=True)
        self.user.click_button(main, words.stop)
        wait_for(lambda: main.button(words.play).enabled, "an idle window")

    def microphone_is_seen(self, main: Window) -> bool:
        place = main.numbered(MICROPHONE_PICTURE).place
        marks = drawn(self.screen.look(
            Place(place.x + 1, place.y + 1, place.width - 2, place.height - 2)))
        middle = marks.shape[0] // 2
        return all(abs(periods(half) - wanted) < 0.5 for half, wanted in
                   zip((marks[:middle], marks[middle:]), MICROPHONE_PERIODS))

    def open_from(self, program: Tonmira, main: Window) -> None:
        words = self.words
        main.press(words.custom)
        wait_for(lambda: main.button(words.help).enabled, "the help button")
        main.slide(12500)
        wait_for(lambda: self.microphone_is_seen(main), "the microphone's tones", 15)
        self.picture(main, "custom", moving=True)
        main.press(words.help)
        self.picture(program.window("Help"), "help")
        program.window("Help").close()
        main.press(words.morse)
        wait_for(lambda: main.is_checked(words.morse), "the Morse tool's mode")
        main.press(words.tool)
        morse = program.window(words.morse)
        self.user.activate(morse)
        click(self.user, text_box(morse, MESSAGE_BOX))
        self.user.type_keys("ctrl+a", "BackSpace")
        self.user.xdotool("type", "--delay", "40", "SOS TONMIRA")
        wait_for(lambda: text(morse, MESSAGE_BOX) == "SOS TONMIRA", "the message")
        self.picture(morse, "morse")
        morse.close()
        main.choose(MENU_ABOUT)
        self.picture(program.window("About Tonmira"), "about")

    def player(self) -> None:
        with self.started(self.settings(), arguments=SAMPLE) as program:
            player = program.window()
            wait_for(lambda: label(player, PLAYED) == str(SHOWN_TONE), "some tones")
            self.picture(player, "player", moving=True)

    def hearing(self) -> None:
        self.recorder.wait_for_silence()
        code = self.words.code
        program, window = start_hearing_test(self.rig, self.driver, Folders(self.rig), code)
        try:
            self.picture(window, "hearing-first")
            listener = Listener(window, self.recorder, HEARD_UP_TO_HZ, code)

            def answer(heard: bool) -> None:
                if len(listener.trials) == 2:
                    assert text_of(window, STATE) == QUESTIONS[code]
                    self.picture(window, "hearing-question")
                listener.press(heard)

            listener.answer_all(answer)
            self.picture(window, "hearing-result")
        finally:
            program.finish()


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print("usage: python3 -m rig.gallery FOLDER", file=sys.stderr)
        return 2
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    folder = Path(arguments[0]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    with Rig() as rig, Screen(rig) as screen:
        gallery = Gallery(rig, screen, folder)
        for words in LANGUAGES:
            gallery.take(words)
            print(f"Pictures taken: {words.code}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
