"""The checks find what they are for."""

import pytest

from check_borders import ALLOWED, violations
from check_hardening import header_complaints, library_complaints, stack_checks
from check_imports import allowed_imports, imports, subsystem_version

DUMP = """
MajorSubsystemVersion   5
MinorSubsystemVersion   1

The Import Tables (interpreted .idata section contents)
 vma:            Hint    Time      Forward  DLL       First
                 Table   Stamp     Chain    Name      Thunk
 00069000\t00069078 00000000 00000000 0006a064 00069330

\tDLL Name: KERNEL32.dll
\tvma:  Hint/Ord Member-Name Bound-To
\t4d5a4\t   30  Beep
\t4d5ac\t  892  GetTickCount64

 00069014\t00069080 00000000 00000000 0006a094 00069338

\tDLL Name: USER32.dll
\tvma:  Hint/Ord Member-Name Bound-To
\t4d5b4\t    3  MessageBoxW
"""


@pytest.mark.parametrize(("path", "line"), [
    ("base/text.cpp", '#include "ui/control.h"'),
    ("ui/control.h", '#include "platform/files.h"'),
    ("platform/files.h", '#include "platform/windows/api/handles.h"'),
    ("settings/settings_file.cpp", '#include "app/form1.h"'),
    ("tone/sine.cpp", '#include "program_files/line_reader.h"'),
    ("app/form1.cpp", '#include "platform/windows/api/handles.h"'),
    ("app/form1.cpp", '#include "platform/simulated/pump.h"'),
    ("app/form1.cpp", "#include <windows.h>"),
    ("platform/simulated/pump.cpp", "  #  include <windows.h>"),
    ("platform/windows/pump.cpp", '#include "app/form1.h"'),
    ("platform/windows/views/picture_view.cpp", '#include "app/form1.h"'),
    ("platform/windows/api/handles.h", '#include "platform/windows/system/file_system.h"'),
    ("helpers/mixer.cpp", '#include "platform/windows/sound/multimedia.h"'),
    ("bench/synthesis_bench.cpp", "#include <windows.h>"),
    ("tests/rig/driver/driver.cpp", '#include "base/text.h"'),
    ("tests/morse/morse_fixture.h", '#include "tests/app/fixture.h"'),
    ("tests/morse/morse_test.cpp", '#include "app/application.h"'),
    ("tests/program_files/player_fixture.h", '#include "app/form1.h"'),
    ("tests/program_files/player_test.cpp", '#include "tests/morse/morse_fixture.h"'),
    ("tests/online/fixture.h", '#include "tests/app/online_fixture.h"'),
    ("tests/about/about_test.cpp", '#include "settings/error_notes.h"'),
    ("tests/lang/fixture.h", '#include "tests/settings/fixture.h"'),
    ("tests/tone/fixture.h", '#include "platform/windows/api/handles.h"'),
    ("tests/elsewhere/text_test.cpp", ""),
    ("helpers/request.cpp", '#include "online/update_check.h"'),
    ("base/text.cpp", "#include <gtest/gtest.h>"),
    ("base/text.cpp", "#include <string.h>"),
    ("elsewhere/text.cpp", ""),
])
def test_a_border_crossed_is_found(path: str, line: str) -> None:
    assert len(violations(path, f"// text\n{line}\n")) == 1


@pytest.mark.parametrize(("path", "line"), [
    ("base/text.cpp", '#include "base/text.h"'),
    ("base/text.cpp", "#include <string>"),
    ("ui/control.h", '#include "base/text.h"'),
    ("app/form1.cpp", '#include "tone/sine.h"'),
    ("helpers/request.cpp", '#include "online/addresses.h"'),
    ("main.cpp", '#include "platform/windows/windows_platform.h"'),
    ("platform/windows/pump.cpp", "#include <windows.h>"),
    ("platform/windows/views/picture_view.cpp", "#include <windows.h>"),
    ("platform/windows/sound/direct_sound.cpp", '#include "platform/windows/views/window.h"'),
    ("tests/rig/bare/bare_window.cpp", "#include <windows.h>"),
    ("tests/morse/morse_fixture.h", '#include "tests/tone/main_window.h"'),
    ("tests/online/fixture.h", '#include "tests/settings/fixture.h"'),
    ("tests/about/about_test.cpp", '#include "tests/lang/file_of.h"'),
    ("tests/app/player_start_fixture.h", '#include "tests/program_files/tone_files.h"'),
    ("tests/app/fixture.h", '#include "app/application.h"'),
    ("tests/tone/sine_test.cpp", "#include <gtest/gtest.h>"),
    ("tests/tone/sine_test.cpp", '#include "platform/simulated/simulation.h"'),
])
def test_what_the_table_allows_passes(path: str, line: str) -> None:
    assert violations(path, line) == []


def test_no_two_rooms_of_the_table_stand_above_each_other() -> None:
    def below(room: str) -> set[str]:
        return ALLOWED[room].union(*(below(lower) for lower in ALLOWED[room]))

    assert [room for room in ALLOWED if room in below(room)] == []


def test_the_imports_are_read_and_a_later_function_is_found() -> None:
    allowed = allowed_imports("# GetTickCount64 came later\n[kernel32.dll]\nBeep Sleep\n\n"
                              "[user32.dll]\nMessageBoxW\n")
    assert imports(DUMP) - allowed == {("kernel32.dll", "GetTickCount64")}


def test_a_function_of_another_library_does_not_count() -> None:
    assert imports(DUMP) - allowed_imports("[user32.dll]\nBeep MessageBoxW GetTickCount64") == {
        ("kernel32.dll", "Beep"), ("kernel32.dll", "GetTickCount64")}


def test_the_system_version_is_read() -> None:
    assert subsystem_version(DUMP) == (5, 1)


HARD = """
Characteristics 0x22e
\texecutable
DllCharacteristics\t00000160
\t\t\t\t\tHIGH_ENTROPY_VA
\t\t\t\t\tDYNAMIC_BASE
\t\t\t\t\tNX_COMPAT
SizeOfStackReserve\t0000000000200000
Entry 5 0000000000090000 00000bdc Base Relocation Directory [.reloc]

PE File Base Relocations (interpreted .reloc section contents)

Virtual Address: 00003000 Chunk size 12 (0xc) Number of fixups 2
"""


def test_a_hard_program_is_not_complained_of() -> None:
    assert header_complaints(HARD, wide=True) == []


@pytest.mark.parametrize(("line", "wide", "complaint"), [
    ("\t\t\t\t\tDYNAMIC_BASE\n", True, "lacks the flag DYNAMIC_BASE"),
    ("\t\t\t\t\tNX_COMPAT\n", False, "lacks the flag NX_COMPAT"),
    ("\t\t\t\t\tHIGH_ENTROPY_VA\n", True, "lacks the flag HIGH_ENTROPY_VA"),
    ("Entry 5 0000000000090000 00000bdc Base Relocation Directory [.reloc]\n", True,
     "has no relocations"),
    ("Virtual Address: 00003000 Chunk size 12 (0xc) Number of fixups 2\n", True,
     "has no relocations"),
])
def test_a_missing_protection_is_found(line: str, wide: bool, complaint: str) -> None:
    assert header_complaints(HARD.replace(line, ""), wide) == [complaint]


def test_stripped_and_empty_relocations_are_found() -> None:
    stripped = HARD.replace("\texecutable", "\trelocations stripped")
    assert header_complaints(stripped, wide=True) == ["its relocations were stripped"]
    empty = HARD.replace("00000bdc Base", "00000000 Base")
    assert header_complaints(empty, wide=True) == ["has no relocations"]


def test_high_entropy_is_for_wide_programs_only() -> None:
    assert header_complaints(HARD.replace("\t\t\t\t\tHIGH_ENTROPY_VA\n", ""), wide=False) == []


def test_a_library_that_a_file_could_stand_in_for_is_found() -> None:
    planted = DUMP.replace("USER32.dll", "WINMM.dll")
    assert library_complaints(DUMP) == []
    assert library_complaints(planted) == [
        "loads winmm.dll at its start, which a file beside it could stand in for"]


CODE = """
   140001530:\t48 83 ec 28          \tsub    $0x28,%rsp
   140001534:\tff 15 00 00 00 00    \tcall   *0x7000(%rip)        # 0x1400085e0
   14000153a:\tba 09 04 00 c0       \tmov    $0xc0000409,%edx
   140001600:\te8 2b ff ff ff       \tcall   0x140001530
   140001605:\te8 00 00 00 00       \tcall   0x140001600
   140001610:\te8 1b ff ff ff       \tcall   140001530 <.text+0x530>
"""


def test_the_places_that_check_their_stack_are_counted() -> None:
    assert stack_checks(CODE) == 2
    assert stack_checks(CODE.replace("$0xc0000409", "$0x1")) == 0
    assert stack_checks("") == 0
