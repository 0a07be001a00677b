"""The manual page and the completion know what the program knows."""

import re
import subprocess
import unittest

from tnf import PROJECT, run

COMMANDS = [[], ["check"], ["info"], ["render"], ["import"], ["import", "rtttl"],
            ["import", "morse"], ["export"], ["export", "rtttl"]]
COMPLETION = PROJECT / "tools" / "tnf.bash"
PAGE = PROJECT / "tools" / "tnf.1"


def options_of(command: list[str]) -> set[str]:
    """The long ones in its help."""
    text = run(*command, "--help").stdout.decode()
    return set(re.findall(r"(?<=[ ,])--[a-z0-9]+", text.split("Options:")[1].split("\n\n")[0]))


def completed(*words: str) -> set[str]:
    """What bash offers for the last of the words."""
    script = f"""
        . /usr/share/bash-completion/bash_completion
        . {COMPLETION}
        COMP_WORDS=({' '.join(map(repr, words))}) COMP_CWORD={len(words) - 1}
        COMP_LINE='{' '.join(words)}' COMP_POINT=${{#COMP_LINE}}
        _tnf
        printf '%s\\n' "${{COMPREPLY[@]}}"
    """
    result = subprocess.run(["bash", "-c", script], capture_output=True, check=True, text=True,
                            cwd=PROJECT / "resources" / "samples", timeout=60)
    return set(result.stdout.split())


class ManualPageTest(unittest.TestCase):
    def test_it_is_well_formed(self) -> None:
        result = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", PAGE], check=True,
                                capture_output=True, timeout=60)
        self.assertEqual(result.stderr, b"")

    def test_it_names_every_command_and_option_and_no_other(self) -> None:
        page = PAGE.read_text().replace("\\-", "-")
        for command in COMMANDS:
            self.assertIn(" ".join(command), page)
        known = set().union(*map(options_of, COMMANDS))
        self.assertIn("--smooth", known)
        self.assertEqual(set(re.findall(r"--[a-z0-9]+", page)), known)


class CompletionTest(unittest.TestCase):
    def test_commands(self) -> None:
        self.assertEqual(completed("tnf", "re"), {"render"})
        self.assertLessEqual({"check", "info", "render", "import", "export"}, completed("tnf", ""))
        self.assertLessEqual({"rtttl", "morse"}, completed("tnf", "import", ""))
        self.assertIn("rtttl", completed("tnf", "export", ""))

    def test_options_are_those_of_the_command(self) -> None:
        for command in COMMANDS:
            offered = completed("tnf", *command, "-")
            self.assertEqual(offered, (options_of(command) | {"--color"}) - {"--colour"}, command)

    def test_tone_programs(self) -> None:
        samples = {path.name for path in (PROJECT / "resources" / "samples").glob("*.tnf")}
        self.assertEqual(completed("tnf", "check", "siren.tnf", ""), samples)
        self.assertEqual(completed("tnf", "render", "--smooth", "si"), {"siren.tnf"})
        self.assertEqual(completed("tnf", "render", "siren.tnf", "--output", "si"), {"siren.tnf"})

    def test_values(self) -> None:
        self.assertEqual(completed("tnf", "--color", "a"), {"auto", "always"})
        self.assertEqual(completed("tnf", "import", "rtttl", "--a440", ""), {"4", "5"})


if __name__ == "__main__":
    unittest.main()
