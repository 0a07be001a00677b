#!/usr/bin/env python3
"""Writes the sample tone programs, samples/*.tnf (the format: docs/tone-programs.md).

    make_samples.py            after changing a sample here; the files are checked in, so that a
                               build needs nothing of this
    make_samples.py --check    writes nothing, and fails when the files are not what this makes

Notes are equal temperament with A4 = 440 Hz, rounded to whole Hz. Tunes lie around C5, where half
a Hz is at most a fiftieth of a semitone. The player knows no rests and no breath between two
tones, so a rest is a tone of REST_HZ, and a note that repeats the one before it cuts that one short
by a breath.
"""

import sys
from pathlib import Path

FOLDER = Path(__file__).resolve().parent / "samples"

FORMAT_VERSION = 236
EXTRA_MS = 10  # the player adds it to every tone; lengths below include it
REST_HZ = 22050  # half the sampling rate: samples near the zeros of the sine, and nothing to hear
BREATH_MS = 60

SEMITONES = {"C": 0, "C#": 1, "D": 2, "D#": 3, "E": 4, "F": 5, "F#": 6, "G": 7, "G#": 8, "A": 9,
             "A#": 10, "B": 11}

Tone = tuple[int, int]  # Hz, ms


def above_a4(semitones: int) -> int:
    return round(440 * 2 ** (semitones / 12))


def pitch(note: str) -> int:
    """Of a note with its octave, as "C#5"."""
    return above_a4(SEMITONES[note[:-1]] - SEMITONES["A"] + 12 * (int(note[-1]) - 4))


def rest(length_ms: int) -> Tone:
    return REST_HZ, length_ms


def melody(beat_ms: int, score: str) -> list[Tone]:
    """Notes as "E5", "E5:1.5" (beats) or "R" (rest); "|" only guides the eye."""
    tones: list[Tone] = []
    for item in score.replace("|", " ").split():
        name, _, beats = item.partition(":")
        length_ms = round(float(beats or 1) * beat_ms)
        if name == "R":
            tones.append(rest(length_ms))
            continue
        if tones and tones[-1][0] == pitch(name):
            tones[-1] = tones[-1][0], tones[-1][1] - BREATH_MS
            tones.append(rest(BREATH_MS))
        tones.append((pitch(name), length_ms))
    return tones


def scale() -> list[Tone]:
    return melody(400, "C5 D5 E5 F5 G5 A5 B5 C6:2 B5 A5 G5 F5 E5 D5 C5:2")


def ode_to_joy() -> list[Tone]:
    beginning = "E5 E5 F5 G5 | G5 F5 E5 D5 | C5 C5 D5 E5 |"
    open_end = "E5:1.5 D5:0.5 D5:2 |"
    closed_end = "D5:1.5 C5:0.5 C5:2 |"
    middle = "D5 D5 E5 C5 | D5 E5:0.5 F5:0.5 E5 C5 | D5 E5:0.5 F5:0.5 E5 D5 | C5 D5 G4:2 |"
    return melody(450, " ".join([beginning, open_end, beginning, closed_end, middle,
                                 beginning, closed_end]))


def auld_lang_syne() -> list[Tone]:
    answer = "D6 | C6:1.5 A5:0.5 A5 F5 | G5:1.5 F5:0.5 G5 A5 | F5:1.5 D5:0.5 D5 C5 | F5:3"
    verse = "C5 | F5:1.5 F5:0.5 F5 A5 | G5:1.5 F5:0.5 G5 A5 | F5:1.5 F5:0.5 A5 C6 | D6:3"
    chorus = "D6 | C6:1.5 A5:0.5 A5 F5 | G5:1.5 F5:0.5 G5 D6 | C6:1.5 A5:0.5 A5 C6 | D6:3"
    return melody(480, " ".join([verse, answer, chorus, answer]))


def westminster_chimes() -> list[Tone]:
    hour = ("E5 G#5 F#5 B4:2 R | E5 F#5 G#5 E5:2 R | G#5 E5 F#5 B4:2 R | B4 F#5 G#5 E5:2 R |")
    three_o_clock = "E4:2 R | E4:2 R | E4:2"
    return melody(600, hour + three_o_clock)


def siren() -> list[Tone]:
    return melody(700, 8 * "A4 D5 ")


def telephone() -> list[Tone]:
    trill = 4 * [(1000, 50), (1250, 50)]
    ring = [*trill, rest(200), *trill]
    return [*ring, rest(2000), *ring, rest(2000), *ring]


def hearing_sweep() -> list[Tone]:
    """A tone to set the volume by, then 8 to 20 kHz, and the first one again as the end."""
    tones = [(1000, 1000)]
    for khz in range(8, 21):
        tones += [rest(500), (1000 * khz, 1000)]
    return [*tones, rest(500), (1000, 1000)]


def glissando() -> list[Tone]:
    """Three octaves in semitones, up and down."""
    rise = [above_a4(semitone - 9) for semitone in range(37)]
    run = [(hz, 70) for hz in rise[1:] + rise[-2:0:-1]]
    return [(rise[0], 500), *run, (rise[0], 500)]


SAMPLES = {
    "scale": ("C major scale, up and down", scale),
    "ode-to-joy": ("Ode to Joy (Ludwig van Beethoven)", ode_to_joy),
    "auld-lang-syne": ("Auld Lang Syne (Scottish air)", auld_lang_syne),
    "westminster-chimes": ("Westminster chimes at three o'clock", westminster_chimes),
    "siren": ("Siren, two tones a fourth apart", siren),
    "telephone": ("Telephone ringing three times", telephone),
    "hearing-sweep": ("Hearing sweep, 8000 Hz to 20000 Hz", hearing_sweep),
    "glissando": ("Glissando over three octaves", glissando),
}


def content(name: str, tones: list[Tone]) -> bytes:
    lines = ["%valid%", "[info]", f"{{{FORMAT_VERSION}}}", f"{{{name}}}", "{visible}", "[sound]",
             f"{{{EXTRA_MS}}}"]
    for hz, length_ms in tones:
        lines += [f"<{hz}>", f"\\{length_ms - EXTRA_MS}"]
    return "".join(f"{line}\r\n" for line in lines).encode("ascii")


def main(arguments: list[str]) -> int:
    wanted = {f"{file}.tnf": content(name, tones()) for file, (name, tones) in SAMPLES.items()}
    if arguments == ["--check"]:
        found = {path.name: path.read_bytes() for path in FOLDER.iterdir()}
        wrong = sorted(file for file in wanted | found if wanted.get(file) != found.get(file))
        for file in wrong:
            print(f"{FOLDER.name}/{file} is not what {Path(__file__).name} makes")
        print(f"{len(wanted)} sample tone programs, {len(wrong)} wrong")
        return 1 if wrong else 0
    for file, data in wanted.items():
        (FOLDER / file).write_bytes(data)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
