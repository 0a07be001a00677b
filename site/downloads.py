"""The files that the site offers, with their sizes and sums, as ./release leaves them."""

import hashlib
import shutil
from pathlib import Path

SUMS = "SHA256SUMS"

# Name, after "tonmira-" and the version -> for whom it is.
FILES = {
    "setup.exe": ("For most: with installer",
                  "A 64-bit Windows. It installs for you alone and needs no administrator."),
    "portable.zip": ("Without installing",
                     "A 64-bit Windows. Unpack it anywhere and start <code>tonmira.exe</code>."),
    "setup-x86.exe": ("With installer, for 32-bit Windows", "A 32-bit Windows, as on old PCs."),
    "portable-x86.zip": ("Without installing, for 32-bit Windows",
                         "A 32-bit Windows. Unpack it anywhere and start "
                         "<code>tonmira.exe</code>."),
}

NONE_OFFERED = """<p>This copy of the site offers no files. They are made from the program's
  sources, by <code>./release</code> there; <code>README.md</code> says how.</p>"""


def names(version: str) -> list[str]:
    return [f"tonmira-{version}-{name}" for name in FILES]


def stated_sums(dist: Path) -> dict[str, str]:
    """The sums that SHA256SUMS states, by file."""
    sums = {}
    for line in (dist / SUMS).read_text().splitlines():
        digest, _, name = line.partition("  ")
        sums[name] = digest
    return sums


def checked_sum(dist: Path, name: str, stated: dict[str, str]) -> str:
    digest = hashlib.sha256((dist / name).read_bytes()).hexdigest()
    if stated.get(name) != digest:
        raise ValueError(f"{SUMS} says {stated.get(name, 'nothing')} of {name}, which has {digest}")
    return digest


def size_text(size: int) -> str:
    return f"{size / 1e6:.1f} MB" if size >= 1e6 else f"{max(1, round(size / 1e3))} kB"


def offered(dist: Path, version: str) -> str:
    """The part of the download page that lists the files. Raises where one is missing or is not the
    one whose sum is stated."""
    stated = stated_sums(dist)
    return "\n".join(
        f"""<div class="group">
  <h2><span>{title}</span></h2>
  <p><a href="../downloads/{name}">{name}</a>, {size_text((dist / name).stat().st_size)}</p>
  <p>{text}</p>
  <p>SHA-256: <code>{checked_sum(dist, name, stated)}</code></p>
</div>""" for name, (title, text) in zip(names(version), FILES.values()))


def copy_downloads(dist: Path, version: str, folder: Path) -> None:
    folder.mkdir()
    for name in [*names(version), SUMS]:
        shutil.copyfile(dist / name, folder / name)
