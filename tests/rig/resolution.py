"""Screens of any resolution, and which texts do not fit there."""

import struct

from rig.program import Folders, Tonmira
from rig.rig import Rig
from rig.window import Driver, Window


def set_dpi(rig: Rig, dpi: int) -> None:
    rig.run("wine", "reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t",
            "REG_DWORD", "/d", str(dpi), "/f", timeout=60)


def logfont(face: str, height: int) -> str:
    """A font as the registry holds it (LOGFONTW, in hexadecimal bytes)."""
    numbers = struct.pack("<5i8B", height, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 5, 0)
    return ",".join(f"{byte:02x}" for byte in numbers + face.encode("utf-16-le").ljust(64, b"\0"))


# Segoe UI, 9 points, is the font of today's desktops. The letters of this one are as wide, but for
# three in a hundred that the driver adds; Wine's own font is narrower than both.
WIDE_FONT, WIDE_FONT_HEIGHT = "Liberation Sans", -12
METRICS = r"HKEY_CURRENT_USER\Control Panel\Desktop\WindowMetrics"
FONTS = ("MessageFont", "MenuFont", "StatusFont")


def use_wide_fonts(rig: Rig, wide: bool) -> None:
    """What runs from now on has the wide font in windows, menus and status bars, at every DPI."""
    value = f"hex:{logfont(WIDE_FONT, WIDE_FONT_HEIGHT)}" if wide else "-"
    lines = ["REGEDIT4", "", f"[{METRICS}]", *[f'"{font}"={value}' for font in FONTS], ""]
    path = rig.new_folder("fonts") / "fonts.reg"
    path.write_text("\r\n".join(lines))
    rig.run("wine", "regedit", "/S", rig.windows_path(path))


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


def cut_off(driver: Driver, window: Window, dpi: int | None = None) -> list[str]:
    """Texts that do not fit, at the resolution of the system or of the window's own screen."""
    return [line[0] for line in driver.ask("cut", window.handle, *([str(dpi)] if dpi else []))]
