"""The hearing test, and somebody who does it."""

from collections.abc import Callable
from pathlib import Path

import numpy as np

from rig.measuring import RATE, Tone, measure
from rig.paths import PROGRAM
from rig.program import Folders, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, Window

HEARING_TEST = PROGRAM.parent / "hearage.dll"
TITLES = {"en": "Hearing age", "nl": "Gehoorleeftijd"}
QUESTIONS = {"en": "Did you hear it?", "nl": "Hebt u een toon gehoord?"}
# Ids of its controls.
PAGE, STATE, START, YES, NO, CLOSE, RESULT, AGES = range(100, 108)
SCALE = 113


def hand_over(folders: Folders, text: bytes) -> Path:
    path = folders.temp / "testhearing.ini"
    path.write_bytes(text)
    return path


def start_hearing_test(rig: Rig, driver: Driver, folders: Folders,
                       language: str = "en") -> tuple[Tonmira, Window]:
    hand_over(folders, f"128\r\n{language}\r\n".encode())
    program = Tonmira(rig, driver, folders, exe=HEARING_TEST)
    return program, program.window(TITLES[language])


def text_of(window: Window, number: int) -> str:
    return window.numbered(number).text


class Listener:
    """Says "Yes" to what is heard in the recording and not above a pitch. One without a recording
    hears nothing."""

    def __init__(self, window: Window, recorder: Recorder | None, highest_hz: float,
                 language: str = "en"):
        self.window = window
        self.recorder = recorder
        self.highest_hz = highest_hz
        self.question = QUESTIONS[language]
        self.trials: list[Tone | None] = []
        self.peak = 0

    def wait_for_question(self) -> None:
        wait_for(lambda: text_of(self.window, STATE) == self.question, "the question", 20)

    def over(self) -> bool:
        return self.window.numbered(START).enabled

    def listen(self, before: int) -> Tone | None:
        """What sounded since that frame, once the question stands."""
        self.wait_for_question()
        assert self.recorder
        # What is heard comes later than what is played.
        self.recorder.record(0.4)
        samples = self.recorder.samples(before)
        self.peak = max(self.peak, int(np.abs(samples).max()))
        return measure(samples)

    def answer_all(self, press: Callable[[bool], None]) -> None:
        """From the press of Start on to the end of the test."""
        assert self.recorder
        before = self.recorder.frames()
        self.press_start()
        while not self.over():
            tone = self.listen(before)
            self.trials.append(tone)
            before = self.recorder.frames()
            press(tone is not None and tone.frequency_hz <= self.highest_hz + 1)

    def press_start(self) -> None:
        self.window.driver.ask("press", self.window.numbered(START).handle)
        wait_for(lambda: not self.over(), "the beginning of the test")

    def press(self, heard: bool) -> None:
        self.window.driver.ask("press", self.window.numbered(YES if heard else NO).handle)
        wait_for(lambda: self.over() or text_of(self.window, STATE) != self.question,
                 "what follows an answer")

    def pitches(self) -> list[float]:
        return [tone.frequency_hz if tone else 0 for tone in self.trials]


def edge_ms(samples: np.ndarray) -> float:
    """How long the tone in the samples takes from a tenth to nine tenths of its height."""
    width = RATE // 1000
    chunks = np.abs(samples[: len(samples) // width * width].reshape(-1, width)).max(axis=1)
    height = chunks.max()
    first = int(np.argmax(chunks > 0.1 * height))
    last = int(np.argmax(chunks > 0.9 * height))
    return float(last - first)
