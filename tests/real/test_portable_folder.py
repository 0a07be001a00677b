"""What ships beside the program."""

from pathlib import Path

from bench import PROGRAM, PROJECT


def test_the_sample_tone_programs_ship_as_they_are() -> None:
    def contents(folder: Path) -> dict[str, bytes]:
        return {path.name: path.read_bytes() for path in folder.iterdir()}

    samples = contents(PROJECT / "resources" / "samples")
    assert len(samples) == 8
    assert contents(PROGRAM.parent / "samples") == samples
