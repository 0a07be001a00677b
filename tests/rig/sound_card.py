"""A sound card that exists only as a sound server: what is played on "out" comes out of "card",
whose third channel carries the pilot (rig/pilot.py); what is played on "mic" is heard by its
microphone.
"""

import subprocess
import sys
from pathlib import Path

from rig import pilot
from rig.measuring import RATE
from rig.session import Session
from rig.waiting import wait_for

# Programs see a plain stereo device; the pilot's channel lies behind it.
SOUND_CARD = """
load-module module-native-protocol-unix auth-anonymous=1 socket={socket}
load-module module-null-sink sink_name=card rate={rate} channels=3 format=s16le {card_map}
load-module module-remap-sink sink_name=out master=card channels=2 remix=no {out_map}
load-module module-null-sink sink_name=mic rate={rate} channels=2 format=s16le
set-default-sink out
set-default-source mic.monitor
"""
STEREO = "front-left,front-right"
CHANNELS = f"{STEREO},{pilot.CHANNEL}"
# Who records asks the card to take its samples in pieces as short as these: a pause that lies
# between two pieces is not heard, and the player's own pauses between Morse tones last 10 ms.
PIECE_MS = 5
# Less than the programs have that are listened to. The pilot waits for the processors as they do,
# too, and so breaks when they are kept from playing.
PILOT_LATENCY_MS = 80
RAW = ["--raw", "--format=s16le", f"--rate={RATE}"]


def start_sound_card(session: Session) -> subprocess.Popen:
    """Returns the sound server. Where one has ended, this is its successor."""
    socket = session.folder / "runtime" / "sound"
    socket.unlink(missing_ok=True)
    session.env["PULSE_RUNTIME_PATH"] = str(session.folder / "runtime" / "pulse")
    session.env["PULSE_SERVER"] = f"unix:{socket}"
    script = session.folder / "sound.pa"
    script.write_text(SOUND_CARD.format(
        socket=socket, rate=RATE, card_map=f"channel_map={CHANNELS}",
        out_map=f"channel_map={STEREO} master_channel_map={STEREO}"))
    # Ahead of everything as it is, it would be ended after 200 ms without a pause. And memory that
    # a program shares with it and leaves behind, being killed while it plays, can end it, too.
    settings = session.folder / "daemon.conf"
    settings.write_text("rlimit-rttime = -1\nenable-shm = no\n")
    with open(server_log(session), "ab") as log:
        server = session.start(
            "pulseaudio", "-n", "--file", str(script), "--daemonize=no", "--system=no",
            "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no", "--high-priority=no",
            "--disallow-exit", "--log-level=error", stderr=log, first_of_all=True,
            env={**session.env, "PULSE_CONFIG": str(settings)})
    wait_for(socket.exists, "the sound server")
    wait_for(lambda: "sink_name=mic" in modules_of(session), "the sound devices")
    session.put_first(server)
    start_pilot(session)
    return server


def server_log(session: Session) -> Path:
    return session.folder / "sound.log"


def why_ended(session: Session, server: subprocess.Popen) -> str:
    """Nothing while the sound server runs."""
    code = server.poll()
    if code is None:
        return ""
    said = server_log(session).read_text(errors="replace").strip().splitlines()
    return f"the sound server ended with {code}" + (f", {said[-1]!r}" if said else "")


def modules_of(session: Session) -> str:
    """What the sound server has loaded; nothing while it does not answer yet."""
    return subprocess.run(["pactl", "list", "short", "modules"], env=session.env, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout


def start_pilot(session: Session) -> subprocess.Popen:
    """Returns the process that plays it."""
    writer = session.start(sys.executable, str(Path(pilot.__file__)), stdout=subprocess.PIPE)
    return session.start("pacat", "--playback", *RAW, "--channels=1",
                         f"--channel-map={pilot.CHANNEL}", "--device=card",
                         f"--latency-msec={PILOT_LATENCY_MS}", stdin=writer.stdout,
                         stderr=subprocess.DEVNULL)


def start_recording(session: Session) -> subprocess.Popen:
    """Records all three channels of the card, 16 bits each, to the process's standard output."""
    return session.start("parec", "--device=card.monitor", *RAW, "--channels=3",
                         f"--channel-map={CHANNELS}", f"--latency-msec={PIECE_MS}",
                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, first_of_all=True)
