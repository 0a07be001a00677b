"""The test rig: a display, a sound card with ears and a Wine prefix, all private.

Several rigs can run side by side. Nothing outside a rig's folder is written, except the cache of
prepared things under build/.
"""

from pathlib import Path

from rig.display import start_display
from rig.processes import all_processes
from rig.session import Session
from rig.sound_card import start_sound_card, why_ended
from rig.wine import start_wine


class Rig(Session):
    """Starts everything on construction; `close` ends it, also after a failed start."""

    def __init__(self) -> None:
        super().__init__()
        # Nobody listens there: a test that wants a site names another.
        self.env["TONMIRA_SITE"] = "http://127.0.0.1:1"
        self.display_number = ""
        try:
            self.display_number, self.window_manager = start_display(self)
            self._sound_server = start_sound_card(self)
            self.prefix = start_wine(self)
        except BaseException:
            self.close()
            raise

    def __enter__(self) -> "Rig":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def silenced(self) -> str:
        """Why nothing can be heard any more: the sound server ended; nothing while it runs, and of
        a rig that is closed."""
        return "" if self.closed else why_ended(self, self._sound_server)

    def start_sound_again(self) -> None:
        self._sound_server = start_sound_card(self)

    def windows_path(self, path: Path) -> str:
        return "Z:" + str(path).replace("/", "\\")


def what_is_left_of(rig: Rig) -> list[str]:
    """Processes, folders and displays of a closed rig that are still there; should be nothing."""
    left = [f"process {pid}" for pid in rig.processes()]
    lock = Path(f"/tmp/.X{rig.display_number}-lock")
    # Another display may have taken the number meanwhile: its lock names a living process.
    if not (lock.exists() and int(lock.read_text()) in all_processes()):
        left += [str(path) for path in (lock, Path(f"/tmp/.X11-unix/X{rig.display_number}"))
                 if path.exists()]
    return left + [str(rig.folder)] * rig.folder.exists()
