"""The Morse tool: writing into it, and what is heard of it."""

from rig.measuring import RATE, loud_stretches
from rig.program import Tonmira
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Control, User, Window

CODES = {"S": "...", "O": "----", "P": ".--.", "A": ".-", "R": ".-.", "I": "..", "7": "--...",
         "3": "...--"}
# The pauses within a character are the player's own, 2 to 8 ms; half a period of the lowest pitch
# that is listened to, 700 Hz, is 31 frames.
CHUNK = 32
MESSAGE = "SOS PARIS 73"


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


def as_text(tones: list[tuple[float, float]]) -> str:
    """The code that is heard, with a blank between characters and " / " between words; a question
    mark stands for every tone or pause that is none of these at speed 0."""
    text = ""
    for (begin, length), following in zip(tones, [*tones[1:], None]):
        text += "." if 0.085 < length < 0.12 else "-" if 0.18 < length < 0.25 else "?"
        if following:
            pause = following[0] - begin - length
            text += ("" if pause < 0.06 else " " if 0.085 < pause < 0.2
                     else " / " if 0.65 < pause < 0.85 else "?")
    return text


def code_of(message: str) -> str:
    return " / ".join(" ".join(CODES[c] for c in word) for word in message.split(" "))


def symbols(recorder: Recorder, first_frame: int) -> list[tuple[float, float]]:
    """Beginning and length, in seconds, of every tone since `first_frame`."""
    return [(a / RATE, (b - a) / RATE)
            for a, b in loud_stretches(recorder.samples(first_frame), CHUNK)]
