"""The Morse tool: what a typed message sounds like, and what its buttons do while it plays."""

from collections.abc import Iterator

import pytest

from rig.measuring import RATE, short_pitch
from rig.morse import (CODES, MESSAGE, MESSAGE_BOX, PITCH_BOX, SPEED_BOX, as_text, click, code_of,
                       open_tool, symbols, text, text_box, write)
from rig.playing import start
from rig.program import TEMPORARY_WAVE, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.streams import streams
from rig.waiting import wait_for
from rig.window import Driver, User

PITCH_HZ = 700
DASH_MS = 200
# A tone that wakes the device lacks 40 ms or more.
AS_LONG_MS = 12


@pytest.fixture
def program(rig: Rig, driver: Driver) -> Iterator[Tonmira]:
    program = start(rig, driver, "256")
    yield program
    program.finish()


def test_a_message_is_heard_as_its_code_with_its_pauses_at_its_pitch(
        program: Tonmira, user: User, recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, MESSAGE)
    count = sum(len(CODES[c]) for c in MESSAGE if c != " ")
    recorder.wait_for_silence()
    first = recorder.frames()
    user.click_button(tool, "Play sound")
    wait_for(lambda: len(symbols(recorder, first)) >= count, "the message", 40)
    recorder.record(0.5)
    tones = symbols(recorder, first)
    tool.press("Stop sound")

    assert as_text(tones) == code_of(MESSAGE), tones
    samples = recorder.samples(first)
    pitches = [short_pitch(samples[int(begin * RATE) : int((begin + length) * RATE)])
               for begin, length in tones]
    assert pitches == pytest.approx([PITCH_HZ] * count, rel=1e-3)


def test_the_first_tone_is_as_long_as_the_later_ones(
        program: Tonmira, user: User, recorder: Recorder) -> None:
    tool = open_tool(program, user)
    write(user, tool, "TTTT")
    recorder.wait_for_silence()
    first = recorder.frames()
    user.click_button(tool, "Play sound")
    wait_for(lambda: len(symbols(recorder, first)) >= 4, "the message", 20)
    recorder.record(0.3)
    lengths_ms = [1000 * length for _, length in symbols(recorder, first)]
    tool.press("Stop sound")
    assert lengths_ms == pytest.approx([DASH_MS] * 4, abs=AS_LONG_MS), lengths_ms


def test_the_output_is_awake_before_the_message_and_given_up_after_it(
        program: Tonmira, rig: Rig, user: User, recorder: Recorder) -> None:
    """This card is always awake, so the first tone is whole here in any case; what wakes others is
    a stream of silence."""
    tool = open_tool(program, user)
    recorder.wait_for_silence()
    first = recorder.frames()
    wait_for(lambda: len(streams(rig)) == 1, "a stream of the tool's")
    assert not symbols(recorder, first)
    write(user, tool, "TT")
    user.click_button(tool, "Play sound")
    wait_for(lambda: len(symbols(recorder, first)) == 2, "the message", 20)
    wait_for(lambda: not streams(rig), "the end of all streams")


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
