"""The Morse tool: what a typed message sounds like, and what its buttons do while it plays."""

from collections.abc import Iterator

import pytest

from bench import Bench, wait_for
from measuring import RATE, loud_stretches, short_pitch
from playing import start
from program import TEMPORARY_WAVE, Tonmira
from sound import Recorder
from window import Control, Driver, User, Window

CODES = {"S": "...", "O": "----", "P": ".--.", "A": ".-", "R": ".-.", "I": "..", "7": "--...",
         "3": "...--"}
# The pauses within a character are the player's own, some 15 ms.
CHUNK = RATE // 500
MESSAGE = "SOS PARIS 73"
PITCH_HZ = 700
PLAYS = 4


@pytest.fixture
def program(bench: Bench, driver: Driver) -> Iterator[Tonmira]:
    program = start(bench, driver, "256")
    yield program
    program.finish()


def open_tool(program: Tonmira, user: User) -> Window:
    main = program.window()
    user.activate(main)
    user.click_button(main, "Morse tool")
    wait_for(lambda: main.is_checked("Morse tool"), "the mode 'Morse tool'")
    user.click_button(main, "Start")
    return program.window("Morse tool")


# The text boxes by their place in the tab order; their texts are no captions.
MESSAGE_BOX, SPEED_BOX, PITCH_BOX = 101, 103, 105


def text_box(tool: Window, number: int) -> Control:
    return next(c for c in tool.controls() if c.id == number)


def text(tool: Window, number: int) -> str:
    return tool.driver.ask("text", text_box(tool, number).handle)[0][0]


def click(user: User, control: Control) -> None:
    user.point_at(control)
    user.xdotool("click", "1")


def write(user: User, tool: Window, message: str) -> None:
    wait_for(lambda: text(tool, MESSAGE_BOX) == "Type your message here...", "the invitation")
    user.activate(tool)
    click(user, text_box(tool, MESSAGE_BOX))
    user.type_keys("ctrl+End", *["BackSpace"] * 25)
    user.xdotool("type", "--delay", "40", message)
    wait_for(lambda: text(tool, MESSAGE_BOX) == message, "the message")


def symbols(recorder: Recorder, first_frame: int) -> list[tuple[float, float]]:
    """Beginning and length, in seconds, of every tone since `first_frame`."""
    return [(a / RATE, (b - a) / RATE)
            for a, b in loud_stretches(recorder.samples(first_frame), CHUNK)]


def as_code(tones: list[tuple[float, float]]) -> str:
    return "".join("." if length < 0.155 else "-" for _, length in tones)


def test_a_message_is_heard_as_its_code_at_its_pitch(program: Tonmira, user: User,
                                                     recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, MESSAGE)
    expected = "".join(CODES[c] for c in MESSAGE if c != " ")

    def play() -> tuple[str, list[float]]:
        recorder.wait_for_silence()
        first = recorder.frames()
        user.click_button(tool, "Play sound")
        recorder.wait_for_tone()
        wait_for(lambda: len(symbols(recorder, first)) >= len(expected), "the message", 40)
        recorder.record(0.5)
        tones = symbols(recorder, first)
        tool.press("Stop sound")
        samples = recorder.samples(first)
        return as_code(tones), [
            short_pitch(samples[int(begin * RATE) : int((begin + length) * RATE)])
            for begin, length in tones]

    def good(code: str, pitches: list[float]) -> bool:
        return code == expected and all(abs(p / PITCH_HZ - 1) < 1e-3 for p in pitches)

    # A gap in the recording parts a tone in two: the message is listened to again then.
    for _ in range(PLAYS):
        heard, pitches = play()
        if good(heard, pitches):
            break
    assert heard == expected
    assert pitches == pytest.approx([PITCH_HZ] * len(pitches), rel=1e-3)


def test_stop_ends_the_message_and_leaves_no_file(program: Tonmira, user: User,
                                                  recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, "EEEEEEEEEEEEEEEEEEEE")
    first = recorder.frames()
    user.click_button(tool, "Play sound")
    recorder.wait_for_tone()
    recorder.record(1)
    user.click_button(tool, "Stop sound")
    wait_for(lambda: tool.button("Play sound").enabled and not tool.button("Stop sound").enabled,
             "the buttons")
    recorder.wait_for_silence()
    assert 1 < len(symbols(recorder, first)) < 20
    wait_for(lambda: TEMPORARY_WAVE not in program.folders.names(), "the end of the file")


def test_hide_input_hides_the_message_while_it_goes_on(program: Tonmira, user: User,
                                                       recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, "EEEEEEEE")
    first = recorder.frames()
    user.click_button(tool, "Play sound")
    recorder.wait_for_tone()
    user.click_button(tool, "Hide input")
    wait_for(lambda: not text_box(tool, MESSAGE_BOX).visible, "the hidden message")
    wait_for(lambda: len(symbols(recorder, first)) == 8, "the message's end", 20)
    user.click_button(tool, "Hide input")
    wait_for(lambda: text_box(tool, MESSAGE_BOX).visible, "the message")
    tool.press("Stop sound")


def test_closing_the_tool_while_it_plays_leaves_the_program_usable(
        program: Tonmira, user: User, recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, "EEEEEEEEEEEEEEEEEEEE")
    user.click_button(tool, "Play sound")
    recorder.wait_for_tone()
    tool.close()
    wait_for(lambda: not tool.is_open(), "the end of the tool")
    recorder.wait_for_silence()
    main = program.window()
    assert main.button("Start").enabled
    assert program.running()


def test_the_number_fields_refuse_letters(program: Tonmira, user: User) -> None:
    tool = open_tool(program, user)
    user.activate(tool)
    click(user, text_box(tool, PITCH_BOX))
    user.type_keys("End", "x", "5", "minus")
    wait_for(lambda: text(tool, PITCH_BOX) == "7005", "the number with one digit more")
    user.type_keys("BackSpace", "BackSpace")
    wait_for(lambda: text(tool, PITCH_BOX) == "70", "the number without its last digit")
    assert text(tool, SPEED_BOX) == "0"
