"""Makes the manifests for winget: packaging/make_winget.py FOLDER

FOLDER holds the installers; the manifests are written into its folder winget. They are made of the
texts in packaging/winget, of the version and the site that the program has, and of the installers'
sums. The day of the release is the environment's SOURCE_DATE_EPOCH.

The portable archives are not offered there: winget starts what it unpacks through a link elsewhere,
and the program looks for its languages and helpers beside itself.
"""

import hashlib
import os
import sys
from datetime import datetime, timezone
from pathlib import Path
from string import Template

PROJECT = Path(__file__).resolve().parents[1]
TEXTS = PROJECT / "packaging" / "winget"

sys.path.append(str(PROJECT / "site"))

from make_site import stated  # noqa: E402

# Where the site has what is released.
DOWNLOADS = "/downloads/"


def manifests(folder: Path, seconds: int) -> dict[str, str]:
    """The texts by their file names. `seconds` is the time of the release, since 1970."""
    version = stated("CMakeLists.txt", r"^project\(Tonmira VERSION (\d\.\d\.\d)\s")
    site = stated("online/addresses.h", r'kBuiltInSite\[\] = "(.*)";$')
    values = {"version": version, "site": site,
              "day": datetime.fromtimestamp(seconds, timezone.utc).date().isoformat()}
    for key, end in (("x64", "setup.exe"), ("x86", "setup-x86.exe")):
        name = f"tonmira-{version}-{end}"
        values[f"{key}_url"] = f"{site}{DOWNLOADS}{name}"
        values[f"{key}_sum"] = hashlib.sha256((folder / name).read_bytes()).hexdigest().upper()
    return {text.name: Template(text.read_text("utf-8")).substitute(values)
            for text in sorted(TEXTS.glob("*.yaml"))}


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print("usage: make_winget.py FOLDER", file=sys.stderr)
        return 2
    folder = Path(arguments[0])
    (folder / "winget").mkdir()
    for name, text in manifests(folder, int(os.environ["SOURCE_DATE_EPOCH"])).items():
        (folder / "winget" / name).write_bytes(text.encode("utf-8"))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
