#!/usr/bin/env python3
"""tnf beside other programs, in one run: tones beside SoX's "synth", ring tones beside Gammu.

    cmake --preset tools && cmake --build --preset tools
    apt-get install --no-install-recommends sox gammu python3-numpy
    bench/tnf.py

Says of each tone how far its pitch and its length are from what was asked for, and how long it took
to make; of each note of a ring tone text what either program plays.
"""

import io
import shutil
import subprocess
import sys
import tempfile
import time
import wave
from pathlib import Path

import numpy

PROJECT = Path(__file__).resolve().parents[1]
TNF = PROJECT / "build" / "tools" / "tnf"
RATE = 44100
SECONDS = 10
HOUR = 3600
WAVE_HEADER = 44  # bytes
HEAD = "%valid%\r\n[info]\r\n{236}\r\n{Bench}\r\n{visible}\r\n[sound]\r\n{10}\r\n"
TUNE = "Bench:d=4,o=5,b=120:c,8d,8e,f#.,p,2g,16a,16b,c6,8g#,8a#,8d#,c#"


def program(tones):
    """Of pitches in Hz and whole lengths in ms."""
    return HEAD + "".join(f"<{hz}>\r\n\\{ms - 10}\r\n" for hz, ms in tones)


def samples_of(content):
    """The first channel of a WAV file, from -1 to 1."""
    with wave.open(io.BytesIO(content)) as file:
        data = numpy.frombuffer(file.readframes(file.getnframes()), dtype="<i2")
        return data[::file.getnchannels()] / 32768


def pitch_of(samples):
    """By the turns of the analytic signal, between a tenth of the length and nine tenths."""
    spectrum = numpy.fft.fft(samples)
    spectrum[len(samples) // 2:] = 0
    angles = numpy.unwrap(numpy.angle(numpy.fft.ifft(spectrum)))
    tenth = len(samples) // 10
    times = numpy.arange(tenth, len(samples) - tenth) / RATE
    return numpy.polyfit(times, angles[tenth:-tenth], 1)[0] / (2 * numpy.pi)


def timed(*command):
    """The seconds that it takes, of the best of three times."""
    best = float("inf")
    for _ in range(3):
        begin = time.perf_counter()
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        best = min(best, time.perf_counter() - begin)
    return best


def sox_command(pitch, seconds, output):
    return ["sox", "-n", "-r", str(RATE), "-c", "2", "-b", "16", "-t", "wav", str(output), "synth",
            str(seconds), "sine", str(pitch)]


def compare_tones(folder):
    print(f"{SECONDS} s of a tone         pitch error     length error  time")
    for pitch in 20, 440, 1000, 4711, 10000, 16600, 21000:
        tune, ours, theirs = folder / "a.tnf", folder / "tnf.wav", folder / "sox.wav"
        tune.write_text(program([(pitch, SECONDS * 1000)]), newline="")
        commands = {"tnf": (ours, [TNF, "render", tune, "-o", ours]),
                    "sox": (theirs, sox_command(pitch, SECONDS, theirs))}
        for name, (output, command) in commands.items():
            taken = timed(*command)
            samples = samples_of(output.read_bytes())
            print(f"{name} {pitch:6d} Hz  {pitch_of(samples) - pitch:+18.6f} Hz "
                  f"{len(samples) - SECONDS * RATE:+10d} frames {1000 * taken:7.1f} ms")


def compare_speed(folder):
    tune = folder / "hour.tnf"
    tune.write_text(program([(440, 10000)] * (HOUR // 10)), newline="")
    for name, command in (("tnf", [TNF, "render", tune, "-o", "/dev/null"]),
                          ("sox", sox_command(440, HOUR, "/dev/null"))):
        taken = timed(*command)
        print(f"{name}: an hour in {taken:.2f} s, {HOUR / taken:.0f} times real time")


def notes_of(samples):
    """(pitch, seconds) of each stretch of one pitch, rests as 0, judged 5 ms by 5 ms."""
    step = RATE // 200
    notes = []
    for at in range(0, len(samples) - step, step):
        piece = samples[at:at + step]
        crossings = numpy.count_nonzero(numpy.diff(numpy.signbit(piece)))
        silent = numpy.max(numpy.abs(piece)) < 0.05
        pitch = 0 if silent else crossings * RATE / step / 2
        if notes and abs(notes[-1][0] - pitch) <= 200 and (notes[-1][0] == 0) == silent:
            notes[-1][1] += step
            notes[-1][2].append(piece)
        else:
            notes.append([pitch, step, [piece]])
    return [(0 if pitch == 0 else pitch_of(numpy.concatenate(pieces)), size / RATE)
            for pitch, size, pieces in notes if size > 2 * step]


def compare_tunes(folder):
    text, tune = folder / "tune.rttl", folder / "tune.tnf"
    text.write_text(TUNE)
    ours, theirs = folder / "ours.wav", folder / "theirs.wav"
    subprocess.run([TNF, "import", "rtttl", text, "-o", tune], check=True)
    subprocess.run([TNF, "render", tune, "-o", ours], check=True)
    subprocess.run(["gammu", "copyringtone", text, theirs], check=True, capture_output=True)
    print(TUNE)
    # Gammu's header tells too little of the samples that follow it.
    of_gammu = numpy.frombuffer(theirs.read_bytes()[WAVE_HEADER:], dtype="<i2") / 32768
    for name, samples in ("tnf", samples_of(ours.read_bytes())), ("gammu", of_gammu):
        print(f"{name}: {len(samples) / RATE:.3f} s;",
              "  ".join(f"{hz:.1f} Hz {1000 * s:.0f} ms" for hz, s in notes_of(samples)))


def main():
    for needed in TNF, "sox", "gammu":
        if not shutil.which(needed):
            sys.exit(f"missing: {needed}")
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        compare_tones(folder)
        compare_speed(folder)
        compare_tunes(folder)


if __name__ == "__main__":
    main()
