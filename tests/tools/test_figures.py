"""What tnf needs: memory and time for the longest tone program. Of an optimised build."""

import os
import re
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from tnf import TNF, program

TONES = 996
LENGTH_S = TONES * 64
ALL_BYTES = 44 + LENGTH_S * 44100 * 4
GIB = 1 << 30
PIPE_BYTES = 1024 * 1024
MOST_MEMORY_KIB = 10 * 1000
LEAST_SPEED = 500  # times real time


def peak_memory_kib(pid: int) -> int:
    """Of the process so far; what its parent had before it began does not count."""
    status = Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"VmHWM:\s+(\d+) kB", status)[1])


class FiguresTest(unittest.TestCase):
    def test_17_hours_stream_in_constant_memory_and_little_time(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            tune = Path(folder) / "long.tnf"
            tune.write_bytes(program([(440 + i, 32000) for i in range(TONES)], 32000))
            begin = time.monotonic()
            process = subprocess.Popen([TNF, "render", tune, "-o", "-"], stdout=subprocess.PIPE)
            memory_kib = []
            count = 0
            buffer = bytearray(PIPE_BYTES)
            while size := process.stdout.readinto1(buffer):
                count += size
                # A process that has written all may have ended.
                if count < ALL_BYTES - PIPE_BYTES and count // GIB == len(memory_kib):
                    memory_kib.append(peak_memory_kib(process.pid))
            process.stdout.close()
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
            taken = time.monotonic() - begin
        processor = usage.ru_utime + usage.ru_stime
        print(f"{LENGTH_S} s of sound: {LENGTH_S / processor:.0f} times real time by processor "
              f"time ({processor:.1f} s), {LENGTH_S / taken:.0f} by the clock ({taken:.1f} s); "
              f"memory, GiB by GiB: {memory_kib} KiB")
        self.assertEqual(process.returncode, 0)
        self.assertEqual(count, ALL_BYTES)
        self.assertEqual(len(memory_kib), 11)
        self.assertLess(max(memory_kib), MOST_MEMORY_KIB)
        self.assertLess(memory_kib[-1] - memory_kib[1], 200)
        # The clock runs on while the machine does other work.
        self.assertGreater(LENGTH_S / processor, LEAST_SPEED)


if __name__ == "__main__":
    unittest.main()
