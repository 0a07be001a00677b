"""A test is run again only where its recording was bad for reasons of its own, and it is said.

What is heard wrong in a whole recording is wrong. Where the recording lost something, its test's
result does not count, good or bad. Where the machine stalled, a failure does not count; what was
heard right nevertheless is right, since a stall adds nothing to a recording. Where the sound server
ended, it is started again, and nothing counts that happened without it. Such a test is taken again.
Hooks for pytest; a recording test is one with a fixture "recorder", and the sound server is that of
the fixture "rig".
"""

from _pytest.runner import runtestprotocol
from _pytest.terminal import TerminalReporter
from collections.abc import Iterator

import pytest

from rig.rig import Rig
from rig.sound import Flaw, Recorder

TAKES = 5
RETAKEN = "retaken"


RIG: pytest.StashKey[Rig] = pytest.StashKey()
RECORDER: pytest.StashKey[Recorder] = pytest.StashKey()


def recorder_of(item: pytest.Item) -> Recorder | None:
    return getattr(item, "funcargs", {}).get("recorder")


def start_sound_again(session: pytest.Session) -> None:
    """Where the session's sound server has ended."""
    rig, recorder = session.stash.get(RIG, None), session.stash.get(RECORDER, None)
    if rig and rig.silenced():
        rig.start_sound_again()
        if recorder:
            recorder.begin_again()


def silence(item: pytest.Item) -> list[Flaw]:
    """What is wrong with everything where the session's sound server has ended."""
    rig = item.session.stash.get(RIG, None)
    why = rig.silenced() if rig else ""
    return [Flaw(0, why, lost=True)] if why else []


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_setup(item: pytest.Item) -> Iterator[None]:
    start_sound_again(item.session)
    yield
    recorder, rig = recorder_of(item), getattr(item, "funcargs", {}).get("rig")
    if rig:
        item.session.stash[RIG] = rig
    if recorder:
        item.session.stash[RECORDER] = recorder
    item.first_frame = recorder.frames() if recorder else 0
    item.flaws = silence(item)


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_call(item: pytest.Item) -> Iterator[None]:
    yield
    recorder = recorder_of(item)
    item.flaws = silence(item) or (recorder.flaws(item.first_frame) if recorder else [])


def told(flaws: list[Flaw]) -> str:
    first = flaws[0]
    return f"{first.what} after {first.at_s:.2f} s" + (
        f", and {len(flaws) - 1} more" if len(flaws) > 1 else "")


def tells_nothing(flaws: list[Flaw], passed: bool) -> bool:
    """Whether a take with these flaws and this result says nothing about the program."""
    return any(flaw.lost or not passed for flaw in flaws)


def pytest_runtest_protocol(item: pytest.Item, nextitem: pytest.Item | None) -> bool:
    item.ihook.pytest_runtest_logstart(nodeid=item.nodeid, location=item.location)
    retakes: list[str] = []
    while True:
        item.flaws = []
        reports = runtestprotocol(item, log=False, nextitem=nextitem)
        passed = all(report.passed for report in reports)
        if not tells_nothing(item.flaws, passed) or len(retakes) == TAKES - 1:
            break
        retakes.append(told(item.flaws))
    for report in reports:
        if report.when == "call":
            report.user_properties += [(RETAKEN, why) for why in retakes]
            if passed and tells_nothing(item.flaws, passed):
                report.outcome = "failed"
                report.longrepr = f"no whole recording in {TAKES} takes: " + "; ".join(retakes)
        item.ihook.pytest_runtest_logreport(report=report)
    item.ihook.pytest_runtest_logfinish(nodeid=item.nodeid, location=item.location)
    return True


def pytest_terminal_summary(terminalreporter: TerminalReporter) -> None:
    lines = [f"{report.nodeid}: {why}" for reports in terminalreporter.stats.values()
             for report in reports if getattr(report, "when", "") == "call"
             for name, why in report.user_properties if name == RETAKEN]
    terminalreporter.section("recordings")
    terminalreporter.line(f"{len(lines)} taken again because the recording was not whole")
    for line in lines:
        terminalreporter.line("  " + line)
