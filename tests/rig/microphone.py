"""The rig's microphone: what is played into it is recorded by the program."""

import subprocess

import numpy as np

from rig.measuring import RATE
from rig.processes import end_process
from rig.rig import Rig
from rig.sound import save_wav
from rig.waiting import wait_for

SECONDS = 120


class Microphone:
    def __init__(self, rig: Rig):
        self._rig = rig
        self._player: subprocess.Popen | None = None

    def feed(self, left_hz: float, right_hz: float, amplitude: int = 8000) -> None:
        """Sounds a tone on each channel for two minutes; a frequency of 0 is silence."""
        self.silence()
        moments = np.arange(SECONDS * RATE) / RATE
        channels = [np.sin(2 * np.pi * hz * moments) for hz in (left_hz, right_hz)]
        path = self._rig.folder / "microphone.wav"
        save_wav(path, (amplitude * np.stack(channels, axis=1)).astype("<i2"))
        self._player = self._rig.start("paplay", "--device=mic", "--latency-msec=20", str(path),
                                       stderr=subprocess.DEVNULL)
        wait_for(lambda: "paplay" in self._rig.run("pactl", "list", "clients"), "the feed")

    def silence(self) -> None:
        if self._player:
            end_process(self._player)
        self._player = None

    def unplug(self) -> None:
        """The sound server's device goes while others may be using it."""
        self.silence()
        self._rig.run("pactl", "unload-module", self._module())

    def plug_in(self) -> None:
        self._rig.run("pactl", "load-module", "module-null-sink", "sink_name=mic",
                      f"rate={RATE}", "channels=2", "format=s16le")
        self._rig.run("pactl", "set-default-source", "mic.monitor")
        # The server lets every recording follow the default source; the rig's own one hears what
        # is played.
        outputs = self._rig.run("pactl", "list", "source-outputs").split("Source Output #")[1:]
        for output in outputs:
            if 'application.name = "parec"' in output:
                self._rig.run("pactl", "move-source-output", output.split("\n")[0],
                              "card.monitor")

    def _module(self) -> str:
        modules = self._rig.run("pactl", "list", "short", "modules").splitlines()
        return next(line.split("\t")[0] for line in modules if "sink_name=mic" in line)
