"""Screens of any resolution, and which texts do not fit there."""

from rig.program import Folders, Tonmira
from rig.rig import Rig
from rig.window import Driver, Window


def set_dpi(rig: Rig, dpi: int) -> None:
    rig.run("wine", "reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t",
            "REG_DWORD", "/d", str(dpi), "/f", timeout=60)


def start_at_dpi(rig: Rig, driver: Driver, folders: Folders, dpi: int) -> Tonmira:
    """Starts the program; past the warning of a screen that is not of 96 DPI."""
    program = Tonmira(rig, driver, folders)
    try:
        if dpi != 96:
            program.window("Warning").press("OK")
        program.wait_for_log(">> Program starting finished")
    except BaseException:
        program.finish()
        raise
    return program


def cut_off(driver: Driver, window: Window) -> list[str]:
    return [line[0] for line in driver.ask("cut", window.handle)]
