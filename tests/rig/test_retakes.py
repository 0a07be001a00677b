"""When a test is taken again, how often, and what is said of it."""

from collections import Counter

import pytest

from rig.retakes import TAKES

pytest_plugins = ["pytester"]

# A recorder whose flaws are given take by take; the last ones stay.
CONFTEST = """
import pytest
from rig.retakes import (pytest_runtest_call, pytest_runtest_protocol, pytest_runtest_setup,
                         pytest_terminal_summary)
from rig.sound import Flaw

STALL = Flaw(1.25, "a processor came 65 ms late", lost=False)
BREAK = Flaw(2.5, "the pilot breaks", lost=True)
TAKES = {takes}


class Recorder:
    asked_since = []
    at = 0

    def frames(self):
        Recorder.at += 100
        return Recorder.at

    def flaws(self, first_frame):
        Recorder.asked_since.append(first_frame)
        return TAKES.pop(0) if len(TAKES) > 1 else TAKES[0]


    def begin_again(self):
        Recorder.at = 0


class Rig:
    ended = ""
    starts = 1

    def silenced(self):
        return Rig.ended

    def start_sound_again(self):
        Rig.ended = ""
        Rig.starts += 1


@pytest.fixture(scope="session")
def rig():
    yield Rig()
    Rig.ended = ""  # as of a rig that is closed


@pytest.fixture(scope="session")
def recorder():
    return Recorder()
"""


def run(pytester: pytest.Pytester, takes: str, test: str) -> tuple[Counter, str]:
    """Runs a test with a recorder that has these flaws; the count of each outcome, and what was
    printed."""
    pytester.makeconftest(CONFTEST.format(takes=takes))
    pytester.makepyfile(test)
    result = pytester.runpytest_inprocess("-p", "no:cacheprovider")
    return Counter(result.parseoutcomes()), result.stdout.str()


def test_a_failing_test_with_a_whole_recording_is_not_taken_again(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[]]", """
        times = []
        def test_once(recorder):
            times.append(1)
            assert len(times) > 1, "heard wrong"
    """)
    assert outcomes == {"failed": 1}
    assert "heard wrong" in printed
    assert "0 taken again because the recording was not whole" in printed


def test_a_failing_test_that_records_nothing_is_not_taken_again(pytester: pytest.Pytester) -> None:
    outcomes, _ = run(pytester, "[[STALL]]", """
        times = []
        def test_once():
            times.append(1)
            assert len(times) > 1
    """)
    assert outcomes == {"failed": 1}


def test_the_result_of_the_first_whole_recording_counts_and_the_others_are_told(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[STALL, BREAK], [BREAK], []]", """
        times = []
        def test_third(recorder):
            times.append(1)
            assert len(times) == 3
    """)
    assert outcomes == {"passed": 1}
    assert "2 taken again because the recording was not whole" in printed
    assert "test_third: a processor came 65 ms late after 1.25 s, and 1 more" in printed
    assert "test_third: the pilot breaks after 2.50 s" in printed


def test_a_test_that_passes_with_a_recording_that_lost_something_is_taken_again_and_may_fail(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[STALL, BREAK], []]", """
        times = []
        def test_first(recorder):
            times.append(1)
            assert len(times) == 1, "heard wrong"
    """)
    assert outcomes == {"failed": 1}
    assert "heard wrong" in printed
    assert "1 taken again" in printed


ENDING = """
    times = []
    def test_first({fixtures}):
        times.append(1)
        if len(times) == 1:
            rig.__class__.ended = "the sound server ended with -6"
            {result}
        assert rig.starts == 2
    def test_later(rig):
        assert len(times) == 2
        assert rig.starts == 2
"""


@pytest.mark.parametrize("fixtures", ["rig", "rig, recorder"])
@pytest.mark.parametrize("result", ["assert False", "return"])
def test_where_the_sound_server_ended_it_is_started_again_and_the_test_is_taken_again(
        pytester: pytest.Pytester, fixtures: str, result: str) -> None:
    outcomes, printed = run(pytester, "[[]]", ENDING.format(fixtures=fixtures, result=result))
    assert outcomes == {"passed": 2}
    assert "1 taken again" in printed
    assert "test_first: the sound server ended with -6 after 0.00 s" in printed


def test_what_a_fixture_could_not_do_without_the_sound_server_is_tried_again(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[]]", """
        import pytest
        times = []
        @pytest.fixture
        def started(rig):
            times.append(1)
            if len(times) == 2:
                rig.__class__.ended = "the sound server ended with -6"
            assert not rig.silenced()
        def test_first(started):
            pass
        def test_second(started, rig):
            assert (len(times), rig.starts) == (3, 2)
        def test_third(rig):
            pass
    """)
    assert outcomes == {"passed": 3}
    assert "test_second: the sound server ended with -6" in printed


def test_a_test_that_ends_the_sound_server_each_time_fails(pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[]]", """
        def test_always(rig):
            rig.__class__.ended = "the sound server ended with 0"
    """)
    assert outcomes == {"failed": 1}
    assert f"no whole recording in {TAKES} takes" in printed


def test_what_is_heard_right_though_the_machine_stalled_is_right(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[STALL]]", """
        times = []
        def test_once(recorder):
            times.append(1)
        def test_how_often():
            assert len(times) == 1
    """)
    assert outcomes == {"passed": 2}
    assert "0 taken again" in printed


def test_what_is_heard_wrong_in_every_take_is_told_as_it_was_heard(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[STALL]]", """
        def test_always(recorder):
            assert False, "heard wrong"
    """)
    assert outcomes == {"failed": 1}
    assert "heard wrong" in printed
    assert f"{TAKES - 1} taken again" in printed


def test_without_a_whole_recording_in_all_takes_a_test_fails_whatever_it_heard(
        pytester: pytest.Pytester) -> None:
    outcomes, printed = run(pytester, "[[BREAK]]", """
        times = []
        def test_never(recorder):
            times.append(1)
        def test_how_often():
            assert len(times) == %d
    """ % TAKES)
    assert outcomes == {"failed": 1, "passed": 1}
    assert f"no whole recording in {TAKES} takes" in printed
    assert f"{TAKES - 1} taken again" in printed


def test_each_take_has_new_fixtures_and_its_own_beginning(pytester: pytest.Pytester) -> None:
    outcomes, _ = run(pytester, "[[BREAK], []]", """
        import pytest
        fresh = []
        @pytest.fixture
        def folder():
            fresh.append("begun")
            yield []
            fresh.append("ended")
        def test_first(recorder, folder):
            assert folder == []
            folder.append("used")
        def test_after(recorder):
            assert fresh == ["begun", "ended"] * 2
            assert recorder.asked_since == [100, 200]
    """)
    assert outcomes == {"passed": 2}
