"""random_user.py SEED SECONDS: a rig, the program, and a user who does anything at all."""

import signal
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from rig.random_user import RandomUser  # noqa: E402
from rig.rig import Rig  # noqa: E402
from rig.watched_program import BenchError, WrongError, grown  # noqa: E402
from rig.window import Driver  # noqa: E402

PARTS = 3  # of his time; he rests after each


def main() -> int:
    # A run that is asked to end takes its rig down, too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    seed, seconds = int(sys.argv[1]), float(sys.argv[2])
    with Rig() as rig:
        user = RandomUser(rig, Driver(rig), seed)
        try:
            user.warm_up()
            found = [user.settle()]
            for _ in range(PARTS):
                user.go_on_for(seconds / PARTS)
                found.append(user.settle())
            user.leave_for_good()
        except (WrongError, TimeoutError) as wrong:
            print(f"seed {seed}: {wrong}")
            return 1
        except BenchError as failure:
            print(f"seed {seed}: tells nothing: {failure}")
            return 2
        finally:
            user.close()
    print(f"seed {seed}: {sum(user.done.values())} steps {dict(user.done)}, {user.plays} plays, "
          f"{user.file_dialogs} file dialogs")
    for when, usage in zip(["before", *["then"] * PARTS], found):
        print(f"  {when:6} {usage}")
    more = grown(found[0], found[-1])
    print("  more than before: " + ("; ".join(more) or "nothing"))
    return 1 if more else 0


if __name__ == "__main__":
    sys.exit(main())
