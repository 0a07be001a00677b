"""The measuring itself, on signals whose pitch is known."""

import numpy as np
import pytest

from rig.measuring import (RATE, deviation, last_loud_sample, loud_stretches, measure, short_pitch,
                           steady_pitches, steps)


def tone(frequency: float, seconds: float, amplitude: float = 30000) -> np.ndarray:
    time_s = np.arange(int(seconds * RATE)) / RATE
    return np.round(amplitude * np.sin(2 * np.pi * frequency * time_s)).astype(np.int32)


def silence(seconds: float) -> np.ndarray:
    return np.zeros(int(seconds * RATE), dtype=np.int32)


@pytest.mark.parametrize("frequency", [437.3, 440.0, 1000.0, 4500.0, 10000.0, 15000.0, 16600.0,
                                       20999.5, 21000.0])
def test_a_pitch_is_measured_to_a_thousandth_of_a_percent(frequency: float) -> None:
    found = measure(tone(frequency, 2))
    assert found and found.frequency_hz == pytest.approx(frequency, rel=1e-5)
    assert 29800 <= found.peak <= 30000


def test_440_and_440_02_hertz_are_told_apart() -> None:
    a, b = measure(tone(440, 2)), measure(tone(440.02, 2))
    assert a and b
    assert b.frequency_hz - a.frequency_hz == pytest.approx(0.02, abs=0.004)


@pytest.mark.parametrize("frequency", [4.0, 4.05])
def test_four_hertz_is_measured_to_a_thousandth(frequency: float) -> None:
    found = measure(tone(frequency, 5))
    assert found and found.frequency_hz == pytest.approx(frequency, rel=1e-3)


def test_a_looped_second_of_a_whole_number_of_hertz_keeps_its_pitch() -> None:
    found = measure(looped(21000, 4))
    assert found and found.frequency_hz == pytest.approx(21000, rel=1e-5)
    assert found.length_s > 3.8


def test_the_longest_stretch_between_gaps_is_judged() -> None:
    heard = np.concatenate((silence(0.3), tone(440, 0.7), silence(0.05), tone(440, 2)))
    found = measure(heard)
    assert found and found.frequency_hz == pytest.approx(440, rel=1e-5)
    assert found.start_s == pytest.approx(1.05, abs=0.05)
    assert found.length_s == pytest.approx(2, abs=0.1)


def test_dropped_samples_end_a_steady_stretch() -> None:
    whole = tone(10000, 3)
    # 2 samples less is nearly half a period: nothing is quiet, but the phase jumps.
    found = measure(np.delete(whole, [RATE, RATE + 1]))
    assert found and found.frequency_hz == pytest.approx(10000, rel=1e-5)
    assert found.length_s == pytest.approx(2, abs=0.1)


def test_a_clipped_end_and_a_late_start_do_not_matter() -> None:
    found = measure(np.concatenate((silence(1.234), tone(15000, 1.5), silence(1))))
    assert found and found.frequency_hz == pytest.approx(15000, rel=1e-5)


def test_a_rising_tone_is_not_a_steady_one() -> None:
    time_s = np.arange(2 * RATE) / RATE
    rising = 30000 * np.sin(2 * np.pi * (1000 * time_s + 2000 * time_s**2))
    found = measure(rising.astype(np.int32))
    assert found is None or found.length_s < 0.3


def test_silence_and_faint_noise_give_nothing() -> None:
    noise = np.random.default_rng(1).integers(-300, 300, RATE)
    assert measure(silence(2)) is None
    assert measure(noise) is None
    assert measure(np.zeros(0, dtype=np.int32)) is None
    assert last_loud_sample(noise) is None


def test_the_last_sound_is_found_to_the_sample() -> None:
    heard = np.concatenate((silence(0.5), tone(1000, 1), silence(0.5)))
    last = last_loud_sample(heard)
    assert last is not None and last == pytest.approx(1.5 * RATE, abs=45)


def test_the_pitches_of_a_stepped_tone_are_told_in_their_order() -> None:
    parts = [np.concatenate([tone(pitch, 0.09), silence(0.01)]) for pitch in (200, 400, 600, 9000)]
    assert steady_pitches(np.concatenate(parts), 200) == [200, 400, 600, 9000]


def test_the_steps_of_a_tone_are_told_with_their_beginnings() -> None:
    parts = np.concatenate([tone(pitch, 0.2) for pitch in (200, 400, 600)])
    found = steps(parts, 200)
    assert [pitch for pitch, _ in found] == [200, 400, 600]
    assert [begin for _, begin in found] == pytest.approx([0, 0.2, 0.4], abs=0.021)


@pytest.mark.parametrize("frequency", [4, 440, 10000, 21000])
def test_an_even_tone_deviates_by_its_rounding_only(frequency: int) -> None:
    assert deviation(looped(frequency, 4), frequency) < 0.01
    assert deviation(np.concatenate((looped(frequency, 1)[17777:], looped(frequency, 3))),
                     frequency) < 0.01


@pytest.mark.parametrize("frequency", [4, 440, 10000, 21000])
@pytest.mark.parametrize("hole_s", [0.003, 0.06])
def test_a_hole_at_the_joint_of_a_loop_is_found(frequency: int, hole_s: float) -> None:
    second, hole = looped(frequency, 1), silence(hole_s)
    whole = np.tile(second, 4)
    # Either what would have sounded is lost, or it comes later.
    lost = whole.copy()
    lost[2 * RATE : 2 * RATE + len(hole)] = 0
    late = np.concatenate((second, second, hole, second, second))
    for holed in (lost, late):
        found = measure(holed)
        assert found is None or found.length_s < 3.6 or deviation(holed, frequency) > 0.01


def looped(frequency: int, seconds: int) -> np.ndarray:
    """A second of a whole number of Hertz, again and again, with the joints of what the program
    plays."""
    second = np.round(30000 * np.sin(frequency * 0.00014247585204429924 * np.arange(RATE)))
    return np.tile(second.astype(np.int32), seconds)


def test_a_pitch_beside_the_grid_is_no_step() -> None:
    assert steady_pitches(tone(300, 0.5), 200) == []


@pytest.mark.parametrize("frequency", [699.0, 700.0, 701.3])
def test_the_pitch_of_a_short_tone_is_measured_to_a_hundredth_of_a_percent(
        frequency: float) -> None:
    assert short_pitch(tone(frequency, 0.08)) == pytest.approx(frequency, rel=1e-4)


def test_short_pauses_part_tones_when_the_chunk_is_short() -> None:
    signal = np.concatenate([tone(700, 0.1), silence(0.008), tone(700, 0.2)])
    assert len(loud_stretches(signal, RATE // 500)) == 2
    assert len(loud_stretches(signal)) == 1
