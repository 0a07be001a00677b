"""The windows of the Wine session, through the driver program and, for a user's hands, xdotool."""

import re
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

from rig.paths import DRIVER
from rig.rig import Rig
from rig.waiting import wait_for

# What the driver starts plays with that much in hand. With Wine's own 10 ms its tones have holes on
# any busy machine.
STEADY_SOUND = {"PULSE_LATENCY_MSEC": "100"}


@dataclass(frozen=True)
class Place:
    x: int
    y: int
    width: int
    height: int

    @property
    def middle(self) -> tuple[int, int]:
        return self.x + self.width // 2, self.y + self.height // 2


@dataclass(frozen=True)
class Control:
    handle: str
    id: int
    kind: str
    enabled: bool
    visible: bool
    place: Place
    caption: str  # with "&" before the letter of its access key

    @property
    def text(self) -> str:
        return re.sub("&(.)", r"\1", self.caption)

    @property
    def access_key(self) -> str:
        """The letter that reaches the control together with Alt, or nothing."""
        return (re.findall("&([^&])", self.caption.replace("&&", "")) or [""])[0].lower()


@dataclass(frozen=True)
class TopWindow:
    handle: str
    process: int
    kind: str
    visible: bool
    place: Place
    title: str


class Driver:
    """One helper program inside the Windows session; see driver.cpp for its commands."""

    def __init__(self, rig: Rig):
        self.rig = rig
        self._process = rig.start("wine", str(DRIVER), stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                  encoding="utf-8", env={**rig.env, **STEADY_SOUND})

    def ask(self, *fields: str) -> list[list[str]]:
        """The answer's lines, each as its fields."""
        assert self._process.stdin and self._process.stdout
        self._process.stdin.write("\t".join(fields) + "\n")
        self._process.stdin.flush()
        lines = []
        for line in self._process.stdout:
            line = line.rstrip("\r\n")
            if line == "ok":
                return lines
            if line.startswith("error "):
                raise RuntimeError(f"{fields[0]}: {line[6:]}")
            lines.append(line.split("\t"))
        raise RuntimeError("the driver ended")

    def windows(self) -> list[TopWindow]:
        return [TopWindow(w[0], int(w[1]), w[2], w[3] == "1", Place(*map(int, w[4:8])), w[8])
                for w in self.ask("windows")]

    def controls(self, window: str) -> list[Control]:
        return [Control(c[0], int(c[1]), c[2], c[3] == "1", c[4] == "1",
                        Place(*map(int, c[5:9])), c[9])
                for c in self.ask("controls", window)]

    def running(self, process: int) -> bool:
        return self.ask("running", str(process)) == [["1"]]

    def handles(self, process: int) -> int:
        return int(self.ask("handles", str(process))[0][0])


class Window:
    """A window that stands on the screen."""

    def __init__(self, driver: Driver, handle: str, title: str):
        self.driver = driver
        self.handle = handle
        self.title = title

    def controls(self) -> list[Control]:
        return self.driver.controls(self.handle)

    def control(self, kind: str, text: str | None = None) -> Control:
        """The one control of this class, and with this text where one is given."""
        found = [c for c in self.controls()
                 if c.kind.lower() == kind.lower() and text in (None, c.text)]
        if len(found) != 1:
            raise LookupError(f"{len(found)} controls {kind} {text!r} in {self.title!r}")
        return found[0]

    def numbered(self, number: int) -> Control:
        """The control with this id."""
        return next(c for c in self.controls() if c.id == number)

    def button(self, text: str) -> Control:
        return self.control("Button", text)

    def texts(self) -> list[str]:
        return [c.text for c in self.controls() if c.visible]

    def status(self) -> str:
        bar = self.control("msctls_statusbar32")
        return self.driver.ask("text", bar.handle)[0][0]

    def is_checked(self, text: str) -> bool:
        return self.driver.ask("checked", self.button(text).handle) == [["1"]]

    def press(self, text: str) -> None:
        """A click without the mouse."""
        self.driver.ask("press", self.button(text).handle)

    def chosen(self) -> str:
        """The chosen item of the one drop-down list."""
        text = self.driver.ask("text", self.control("ComboBox").handle)
        return text[0][0] if text else ""

    def select(self, index: int) -> None:
        """Chooses an item of the one drop-down list, without the mouse."""
        self.driver.ask("select", self.control("ComboBox").handle, str(index))

    def items(self) -> list[str]:
        """The lines of the one list."""
        return [line[0] for line in self.driver.ask("items", self.control("ListBox").handle)]

    def choose(self, command: int) -> None:
        self.driver.ask("command", self.handle, str(command))

    def slide(self, value: int) -> None:
        self.driver.ask("slide", self.control("ScrollBar").handle, str(value))

    def focused(self) -> int:
        """The id of the control that has the keyboard, or 0."""
        return int(self.driver.ask("focus", self.handle)[0][0])

    def close(self) -> None:
        self.driver.ask("close", self.handle)

    def client(self) -> Place:
        """What it has for its controls, on the screen."""
        return Place(*map(int, self.driver.ask("client", self.handle)[0]))

    def names(self) -> dict[int, str]:
        """What a screen reader calls the controls, by their ids."""
        return {int(line[1]): line[2] for line in self.driver.ask("names", self.handle)}

    def styles(self) -> dict[int, int]:
        """The controls' window styles, by their ids."""
        return {int(line[0]): int(line[1]) for line in self.driver.ask("styles", self.handle)}

    def place(self) -> Place:
        return next(w.place for w in self.driver.windows() if w.handle == self.handle)

    def is_open(self) -> bool:
        return any(w.handle == self.handle and w.visible for w in self.driver.windows())


class User:
    """A person at the rig's display: looks, moves the mouse and types."""

    def __init__(self, rig: Rig):
        self.rig = rig

    def xdotool(self, *arguments: str) -> str:
        return self.rig.run("xdotool", *arguments, timeout=20).strip()

    def x_window(self, window: Window) -> str:
        """The window as the display numbers it."""
        return str(wait_for(lambda: self._find(window), f"{window.title!r} on the display"))

    def _find(self, window: Window) -> str:
        place = window.place()
        try:
            ids = self.rig.run("xdotool", "search", "--onlyvisible", "--name",
                               f"^{re.escape(window.title)}$",
                               stderr=subprocess.DEVNULL).split()
            for candidate in ids:
                position = self.xdotool("getwindowgeometry", candidate)
                found = re.search(r"Position: (-?\d+),(-?\d+)", position)
                # Two copies have one title; the frame lies between the two kinds of positions.
                if (found and abs(int(found[1]) - place.x) < 40
                        and abs(int(found[2]) - place.y) < 60):
                    return candidate
        except subprocess.CalledProcessError:
            pass  # a window went while xdotool looked
        return ""

    def has_its_size(self, window: Window) -> bool:
        """Whether the display shows the window as wide as the program has it."""
        geometry = self.xdotool("getwindowgeometry", self.x_window(window))
        found = re.search(r"Geometry: (\d+)x", geometry)
        return bool(found) and int(found[1]) == window.client().width

    def wait_for_keyboard(self, window: Window) -> None:
        """Until what is typed goes to a window that nobody activated."""
        own = self.x_window(window)
        wait_for(lambda: self.xdotool("getwindowfocus") == own, f"{window.title!r} at the keyboard")

    def activate(self, window: Window) -> None:
        own = self.x_window(window)
        wait_for(lambda: self._has_desktop(own), f"{window.title!r} in the window manager's hands")
        self.xdotool("windowactivate", "--sync", own)

    def _has_desktop(self, x_window: str) -> bool:
        """The window manager gives a window its desktop when it first sees it."""
        try:
            self.rig.run("xdotool", "get_desktop_for_window", x_window, stderr=subprocess.DEVNULL)
        except subprocess.CalledProcessError:
            return False
        return True

    def point_at(self, control: Control) -> None:
        x, y = control.place.middle
        # For a pointer that stands there already, xdotool waits 15 s in vain.
        if not self.xdotool("getmouselocation").startswith(f"x:{x} y:{y} "):
            self.xdotool("mousemove", "--sync", str(x), str(y))

    def click(self, window: Window, kind: str, text: str) -> float:
        """Clicks a control with the mouse; returns the moment before the click."""
        control = window.control(kind, text)
        self.point_at(control)
        # The pointer must have reached the window before the button goes down.
        time.sleep(0.05)
        moment = time.monotonic()
        self.xdotool("click", "1")
        return moment

    def click_button(self, window: Window, text: str) -> float:
        return self.click(window, "Button", text)

    def type_keys(self, *keys: str) -> None:
        self.xdotool("key", "--delay", "60", *keys)

    def move(self, window: Window, x: int, y: int) -> None:
        self.xdotool("windowmove", "--sync", self.x_window(window), str(x), str(y))

    def screenshot(self, window: Window, path: Path, moving: bool = False) -> None:
        """The window as it stands on the screen, with its frame, once it is drawn to the end; at
        once where something in it is `moving` all the time."""
        path.parent.mkdir(parents=True, exist_ok=True)
        x_window = self.x_window(window)

        def is_settled() -> bool:
            pictures = []
            for _ in range(2):
                self.rig.run("import", "-window", x_window, "-frame", "rgb:" + str(path))
                pictures.append(path.read_bytes())
                time.sleep(0.2)
            return pictures[0] == pictures[1]

        try:
            if not moving:
                wait_for(is_settled, f"a finished picture of {window.title!r}", 10)
        finally:
            self.rig.run("import", "-window", x_window, "-frame", "png:" + str(path))


def wait_for_window(driver: Driver, title: str, process: int | None = None,
                    seconds: float = 30) -> Window:
    def find() -> Window | None:
        for window in driver.windows():
            if (window.visible and window.title == title
                    and process in (None, window.process)):
                return Window(driver, window.handle, title)
        return None

    found = wait_for(find, f"the window {title!r}", seconds)
    assert isinstance(found, Window)
    return found
