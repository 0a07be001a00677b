"""tnf, the real program, with real files, pipes and full disks."""

import os
import pty
import resource
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path

from tnf import TNF, program, run, sine, wave_header

LONGEST = program([(440, 32000)] * 996, 32000)  # 17 hours
MEBIBYTE = 1024 * 1024


def no_room_for_files() -> None:
    """As on a full disk: no file grows above a mebibyte."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (MEBIBYTE, MEBIBYTE))


class TnfTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def put(self, name: str, content: bytes) -> Path:
        path = self.folder / name
        path.write_bytes(content)
        return path

    def names(self) -> set[str]:
        return {path.name for path in self.folder.iterdir()}

    def expect_failure(self, result: subprocess.CompletedProcess, *parts: str) -> None:
        """Exit code 2 and one line that says why."""
        errors = result.stderr.decode()
        self.assertEqual(result.returncode, 2, errors)
        self.assertTrue(errors.startswith("tnf: "), errors)
        self.assertEqual(errors.count("\n"), 1, errors)
        for part in parts:
            self.assertIn(part, errors)


class CheckTest(TnfTest):
    def test_exit_codes(self) -> None:
        good = self.put("good.tnf", program([(440, 490)]))
        bad = self.put("bad.tnf", program([(1, 490)]))
        self.assertEqual(run("check", good).returncode, 0)
        self.assertEqual(run("check", good, bad).returncode, 1)
        self.assertEqual(run("check", bad, self.folder / "missing.tnf").returncode, 2)

    def test_a_problem_has_file_line_and_column(self) -> None:
        result = run("check", "bad.tnf", cwd=self.put("bad.tnf", program([(1, 490)])).parent)
        self.assertEqual(result.stdout.decode().splitlines(), [
            'bad.tnf:8:2: error: expected a pitch above 1 and at most 32000 Hz, found "<1>": '
            "a rest is <22050>",
            "bad.tnf: the player would say:",
            "  bad.tnf is not a legal tnf file!"])

    def test_what_cannot_be_read(self) -> None:
        self.expect_failure(run("check", self.folder), "Is a directory", str(self.folder))
        self.expect_failure(run("check", "missing.tnf"), "missing.tnf: No such file")
        # On the process's own memory the first read fails.
        self.expect_failure(run("check", "/proc/self/mem"), "/proc/self/mem: Input/output error")

    def test_standard_input(self) -> None:
        result = run("check", "-", input=b"")
        self.assertEqual(result.returncode, 1)
        self.assertTrue(result.stdout.startswith(b"standard input:1:1: error: the file is empty\n"))

    def test_output_that_cannot_be_written(self) -> None:
        with open("/dev/full", "wb") as full:
            result = subprocess.run([TNF, "check", "-"], input=b"", stdout=full,
                                    stderr=subprocess.PIPE, check=False)
        self.expect_failure(result, "standard output", "No space left on device")

    def test_names_in_any_language(self) -> None:
        path = self.put("müsik ♪ 音.tnf", program([(1, 490)]))
        self.assertIn("müsik ♪ 音.tnf:8:2: error: ", run("check", path).stdout.decode())

    def test_colours_on_a_terminal_alone(self) -> None:
        bad = self.put("bad.tnf", b"")
        self.assertNotIn(b"\x1b", run("check", bad).stdout)
        for environment, coloured in (({"TERM": "xterm"}, True), ({"TERM": "dumb"}, False),
                                      ({"TERM": "xterm", "NO_COLOR": "1"}, False),
                                      ({"TERM": "xterm", "NO_COLOR": ""}, True)):
            ours, theirs = pty.openpty()
            subprocess.run([TNF, "check", bad], stdout=theirs, check=False, env=environment)
            os.close(theirs)
            shown = os.read(ours, 4096)
            os.close(ours)
            self.assertIn(b"error", shown)
            self.assertEqual(b"\x1b[" in shown, coloured, environment)


class RenderTest(TnfTest):
    def test_the_file_is_what_the_formula_says(self) -> None:
        tune = self.put("ton ♪.tnf", program([(440, 1490), (32000, 90), (22050, 490)]))
        output = self.folder / "töne.wav"
        self.assertEqual(run("render", tune, "-o", output).stderr, b"")
        frames = 66150, 4410, 22050
        samples = b"".join(map(sine, (440, 32000, 22050), frames))
        self.assertTrue(output.read_bytes() == wave_header(4 * sum(frames)) + samples)
        self.assertEqual(self.names(), {"ton ♪.tnf", "töne.wav"})

    def test_standard_output_has_the_same(self) -> None:
        result = run("render", "-", "-o", "-", input=program([(440, 990)]))
        self.assertTrue(result.stdout == wave_header(176400) + sine(440, 44100))

    def test_a_full_disk_leaves_no_file(self) -> None:
        tune = self.put("a.tnf", program([(440, 30000)]))
        output = self.put("a.wav", b"old")
        result = run("render", tune, "-o", output, preexec_fn=no_room_for_files)
        self.expect_failure(result, "a.wav: File too large")
        self.assertEqual(output.read_bytes(), b"old")
        self.assertEqual(self.names(), {"a.tnf", "a.wav"})
        self.expect_failure(run("render", tune, "-o", "/dev/full"), "No space left on device")

    def test_what_is_small_may_not_fit_either(self) -> None:
        tune = self.put("a.tnf", program([(440, 1)], 1))
        self.expect_failure(run("render", tune, "-o", "/dev/full"), "No space left on device")

    def test_a_closed_pipe(self) -> None:
        tune = self.put("a.tnf", LONGEST)
        with subprocess.Popen([TNF, "render", tune, "-o", "-"], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE) as process:
            self.assertEqual(process.stdout.read(4), b"RIFF")
            process.stdout.close()
            self.assertEqual(process.stderr.read(), b"tnf: standard output: Broken pipe\n")
            self.assertEqual(process.wait(), 2)

    def test_outputs_that_cannot_be(self) -> None:
        tune = self.put("a.tnf", program([(440, 490)]))
        self.expect_failure(run("render", tune, "-o", self.folder), "Is a directory")
        self.expect_failure(run("render", tune, "-o", self.folder / "no" / "a.wav"),
                            "No such file or directory")
        self.assertEqual(self.names(), {"a.tnf"})

    def test_an_unfinished_file_cannot_take_the_place_of_a_folder(self) -> None:
        tune = self.put("a.tnf", program([(440, 490)]))
        (self.folder / "a.wav.part").mkdir()
        self.expect_failure(run("render", tune, "-o", self.folder / "a.wav"), "Is a directory")
        self.assertEqual(self.names(), {"a.tnf", "a.wav.part"})

    def test_a_link_stays_a_link(self) -> None:
        tune = self.put("a.tnf", program([(440, 490)]))
        target = self.put("target.wav", b"old")
        link = self.folder / "link.wav"
        link.symlink_to(target)
        self.assertEqual(run("render", tune, "-o", link).returncode, 0)
        self.assertTrue(link.is_symlink())
        self.assertEqual(target.stat().st_size, 44 + 22050 * 4)

    def test_more_than_4_gib_is_refused_before_anything_is_written(self) -> None:
        tune = self.put("long.tnf", LONGEST)
        self.expect_failure(run("render", tune, "-o", self.folder / "a.wav"), "4 GiB",
                            "11244441600 bytes")
        self.assertEqual(self.names(), {"long.tnf"})
        with open(self.folder / "b.wav", "wb") as file:
            result = subprocess.run([TNF, "render", tune, "-o", "-"], stdout=file,
                                    stderr=subprocess.PIPE, check=False)
        self.expect_failure(result, "4 GiB")
        self.assertEqual((self.folder / "b.wav").stat().st_size, 0)

    def test_no_samples_for_a_terminal(self) -> None:
        ours, theirs = pty.openpty()
        tune = self.put("a.tnf", program([(440, 490)]))
        result = subprocess.run([TNF, "render", tune, "-o", "-"], stdout=theirs,
                                stderr=subprocess.PIPE, check=False)
        os.close(theirs)
        os.close(ours)
        self.expect_failure(result, "a terminal cannot show samples")


class ConvertTest(TnfTest):
    def test_a_ring_tone_there_and_back(self) -> None:
        text = "Für Elise:d=8,o=6,b=125:e,d#,e,d#,e,b5,d,c,4a5,p,c5,e5,a5,4b5\n"
        tune = self.folder / "für elise.tnf"
        result = run("import", "rtttl", "-o", tune, input=text.encode())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertIn("{Für Elise}".encode("cp1252"), tune.read_bytes())
        self.assertEqual(run("check", tune).returncode, 0)
        self.assertEqual(run("export", "rtttl", tune).stdout.decode(), text)

    def test_input_without_end(self) -> None:
        with open("/dev/zero", "rb") as zeros:
            for arguments in (["import", "rtttl", "-o", str(self.folder / "a.tnf")],
                              ["check", "-"]):
                result = subprocess.run([TNF, *arguments], stdin=zeros, capture_output=True,
                                        check=False, timeout=300)
                self.assertEqual(result.returncode, 1)
        self.assertEqual(self.names(), set())

    def test_morse_in_any_language(self) -> None:
        tune = self.folder / "a.tnf"
        result = run("import", "morse", "E é", "-o", tune)
        self.assertEqual(result.returncode, 0)
        self.assertIn("é".encode("cp1252"), tune.read_bytes())
        self.assertEqual(result.stderr.decode(), 'tnf: warning: there is no Morse code for "é"\n')


if __name__ == "__main__":
    unittest.main()
